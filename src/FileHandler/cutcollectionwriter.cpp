#include "cutcollectionwriter.h"

#include "cutcollection.h"
#include "dataset.h"
#include "rowtext.h"
#include "textoutput.h"
#include <algorithm>

bool CutCollectionWriter::isReady(const CutCollection* cuts)
{
    m_Error =
        cuts && m_DataSet ? QString() : QStringLiteral("Label collection or data set is invalid");
    return m_Error.isEmpty();
}

bool CutCollectionWriter::report(bool isWritten)
{
    if (!isWritten)
        m_Error = QStringLiteral("Unable to open file");
    return isWritten;
}

bool CutCollectionWriter::WriteData(const CutCollection* cuts)
{
    if (!isReady(cuts))
        return false;
    for (int i = 0; i < cuts->GetSegmentCount(); ++i) {
        const CutSegment* segment = cuts->GetSegment(i);
        const QString file = QStringLiteral("/cut%1.txt").arg(i);
        const bool isWritten = WriteTextFile(m_FileName + file, [&](TextOutput& out) {
            out << "Time ";
            WriteAttributeNames(out, *m_DataSet, '\t');
            out << '\n';
            const int to = std::min(segment->GetTo(), m_DataSet->GetRowCount());
            RowText rowText(out, *m_DataSet);
            for (int row = segment->GetFrom(); row < to; ++row) {
                rowText.WriteLabelled(row, '\t');
                out << '\n';
            }
        });
        if (!report(isWritten))
            return false;
    }
    return true;
}

bool CutCollectionWriter::WriteSegments(const CutCollection* cuts)
{
    if (!isReady(cuts))
        return false;
    return report(WriteTextFile(m_FileName, [&](TextOutput& out) {
        for (int i = 0; i < cuts->GetSegmentCount(); ++i) {
            const CutSegment* segment = cuts->GetSegment(i);
            out << segment->GetFrom() << '\t' << segment->GetTo() << '\t'
                << int(segment->GetState()) << '\n';
        }
    }));
}
