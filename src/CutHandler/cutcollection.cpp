#include "cutcollection.h"

#include <QLoggingCategory>
#include <algorithm>

Q_LOGGING_CATEGORY(lcCuts, "skerrymoor.cuts", QtWarningMsg)

CutSegment* CutCollection::FindSegment(int row, int& index) const
{
    for (int i = 0; i < m_Segments.size(); ++i) {
        CutSegment* segment = m_Segments[i];
        if (segment->GetFrom() <= row && row <= segment->GetTo()) {
            index = i;
            return segment;
        }
    }
    index = 0;
    return nullptr;
}

QList<CutSegment*> CutCollection::GetSegments(int from, int to) const
{
    QList<CutSegment*> inside;
    std::copy_if(m_Segments.begin(), m_Segments.end(), std::back_inserter(inside),
                 [=](const CutSegment* segment) {
                     return segment->GetFrom() >= from && segment->GetTo() <= to;
                 });
    return inside;
}

int CutCollection::CountSegments(CutSegment::SEGMENT_STATE state) const
{
    return int(std::count_if(m_Segments.begin(), m_Segments.end(), [=](const CutSegment* segment) {
        return segment->GetState() == state;
    }));
}

CutSegment* CutCollection::InsertCut(int from, int to, CutSegment::SEGMENT_STATE state)
{
    if (m_Segments.isEmpty()) {
        m_Segments.append(newSegment(from, to));
        return m_Segments.first();
    }
    const auto holder =
        std::find_if(m_Segments.begin(), m_Segments.end(), [=](const CutSegment* segment) {
            return segment->GetFrom() <= from && segment->GetTo() >= to;
        });
    if (holder == m_Segments.end() || from > to) {
        qCDebug(lcCuts, "Insert error - Fix me");
        return nullptr;
    }
    const int oldTo = (*holder)->GetTo();
    (*holder)->SetTo(from);
    CutSegment* cut = newSegment(from, to);
    cut->SetState(state);
    const int index = int(holder - m_Segments.begin()) + 1;
    m_Segments.insert(index, newSegment(to, oldTo));
    m_Segments.insert(index, cut);
    return cut;
}

CutSegment* CutCollection::InsertCut(int at, CutSegment::SEGMENT_STATE state)
{
    if (m_Segments.isEmpty())
        return nullptr;
    int index = 0;
    CutSegment* holder = FindSegment(at, index);
    if (!holder) {
        qCDebug(lcCuts, "Insert error - Fix me");
        return nullptr;
    }
    CutSegment* right = newSegment(at, holder->GetTo());
    right->SetState(state);
    holder->SetTo(at);
    m_Segments.insert(index + 1, right);
    return right;
}

CutSegment* CutCollection::newSegment(int from, int to)
{
    m_Owned.push_back(std::make_unique<CutSegment>(from, to));
    return m_Owned.back().get();
}
