#include "filewriter.h"

#include "dataset.h"
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

FileWriter::FileWriter(const QString& path) : m_FileName(path) {}

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
    const int rows = m_DataSet->GetRowCount();
    const bool isWritten = WriteTextFile(m_FileName, [&](TextOutput& out) {
        out << m_DataSet->GetAttributeNames().join(QLatin1Char(',')) << '\n';
        const int to = isAll ? rows : std::min(m_To, rows);
        for (int row = isAll ? 0 : m_From; row < to; ++row)
            writeRow(out, *m_DataSet, row);
    });
    if (!isWritten)
        m_Error = QStringLiteral("Unable to open file");
    return isWritten;
}
