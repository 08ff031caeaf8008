#include "segmenttext.h"

#include <QStringList>

namespace
{

QString stateMark(CutSegment::SEGMENT_STATE state)
{
    switch (state) {
    case CutSegment::SEGMENT_LABELED:
        return QStringLiteral("L");
    case CutSegment::SEGMENT_RESULT:
        return QStringLiteral("R");
    case CutSegment::SEGMENT_CUT:
        break;
    }
    return QString();
}

} // namespace

QString ToText(const CutCollection& cuts)
{
    QStringList texts;
    for (int i = 0; i < cuts.GetSegmentCount(); ++i) {
        const CutSegment* segment = cuts.GetSegment(i);
        texts.append(stateMark(segment->GetState()) +
                     QStringLiteral("(%1,%2)").arg(segment->GetFrom()).arg(segment->GetTo()));
    }
    return texts.join(QLatin1Char(' '));
}

void MakeCuts(CutCollection& cuts, const char* ends)
{
    const QStringList list = QString::fromLatin1(ends).split(QLatin1Char(' '));
    const auto number = [](QString text) {
        return text.remove(QLatin1Char('L')).remove(QLatin1Char('R')).toInt();
    };
    cuts.InsertCut(0, number(list.last()), CutSegment::SEGMENT_CUT);
    int from = 0;
    for (const QString& end : list) {
        const int to = number(end);
        CutSegment* segment = cuts.GetSegment(cuts.GetSegmentCount() - 1);
        if (&end != &list.last())
            cuts.InsertCut(to, CutSegment::SEGMENT_CUT);
        segment->MoveFrom(from);
        segment->MoveTo(to);
        if (end.endsWith(QLatin1Char('L')))
            segment->SetState(CutSegment::SEGMENT_LABELED);
        if (end.endsWith(QLatin1Char('R')))
            segment->SetState(CutSegment::SEGMENT_RESULT);
        from = to;
    }
}
