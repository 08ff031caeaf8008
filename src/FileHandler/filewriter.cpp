#include "filewriter.h"

#include "dataset.h"
#include "rowprogress.h"
#include "textoutput.h"
#include <algorithm>

namespace
{

// Separators stand between values only.
void writeRow(TextOutput& out, const DataSet& data, int row)
{
    const int count = data.GetValueCount(row);
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            out << ',';
        out.Number(data.GetValue(row, i), FileWriter::Digits);
    }
    out << '\n';
}

} // namespace

FileWriter::FileWriter(const QString& path) : m_FileName(path), m_Progress(&NoProgress::Shared()) {}

void FileWriter::SetRange(int from, int to)
{
    m_From = from;
    m_To = to;
}

bool FileWriter::Write()
{
    m_Error.clear();
    if (!m_DataSet) {
        m_Error = QStringLiteral("Data set not initalized.");
        return false;
    }
    const bool isAll = m_From < 0 || m_To < 0;
    const int from = isAll ? 0 : m_From;
    const int to = isAll ? m_DataSet->GetRowCount() : std::min(m_To, m_DataSet->GetRowCount());
    RowProgress progress(*m_Progress, std::max(to - from, 0));
    const bool isWritten = WriteTextFile(m_FileName, [&](TextOutput& out) {
        out << m_DataSet->GetAttributeNames().join(QLatin1Char(',')) << '\n';
        for (int row = from; row < to && progress.Advance(); ++row)
            writeRow(out, *m_DataSet, row);
        if (progress.IsStopped())
            out.Cancel();
    });
    if (!isWritten)
        m_Error = progress.IsStopped() ? QStringLiteral("Writing was stopped")
                                       : QStringLiteral("Unable to open file");
    return isWritten;
}
