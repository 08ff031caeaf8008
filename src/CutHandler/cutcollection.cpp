#include "cutcollection.h"

#include "dataset.h"
#include "patternsdataobject.h"
#include <QLoggingCategory>
#include <QSet>
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

void CutCollection::InsertCuts(bool** hits, int templates, int length, PatternsDataObject* pattern,
                               int, const QList<QPair<int, int>>& excluded)
{
    QSet<int> leftOut;
    for (const auto& pair : excluded)
        leftOut.insert(pair.second);
    for (int t = 0; t < templates; ++t) {
        const auto* collection = pattern ? pattern->GetSignalCollections().value(t) : nullptr;
        if (!collection || collection->GetSignals().isEmpty())
            continue;
        const int width = collection->GetSignals().first()->GetLength();
        qCDebug(lcCuts, "Signal freq - width: %g %d", collection->GetFrequencyFactor(), width);
        for (int i = 0; i < length; ++i) {
            if (hits[t][i] && !leftOut.contains(i))
                InsertCut(std::max(i - width / 2, 0), std::min(i + width / 2, length),
                          CutSegment::SEGMENT_RESULT);
        }
    }
}

void CutCollection::MergeLabels(int gap)
{
    qCDebug(lcCuts, "Mering labels %d", gap);
    restoreStoredEnds();
    CutSegment* previous = nullptr;
    for (CutSegment* segment : qAsConst(m_Segments)) {
        if (segment->GetState() != CutSegment::SEGMENT_LABELED)
            continue;
        if (previous && segment->GetFrom() - previous->GetTo() < gap) {
            const int middle = (previous->GetTo() + segment->GetFrom()) / 2;
            previous->SetTo(middle);
            segment->SetFrom(middle);
        }
        previous = segment;
    }
}

// A cut shortens the segment it is made in, but not that segment's stored end.
void CutCollection::restoreStoredEnds()
{
    for (int i = 0; i < m_Segments.size(); ++i) {
        CutSegment* segment = m_Segments[i];
        segment->SetFrom(segment->GetOriginalFrom());
        segment->SetTo(segment->GetOriginalTo());
        if (i + 1 == m_Segments.size())
            continue;
        const int nextFrom = m_Segments[i + 1]->GetOriginalFrom();
        if (nextFrom >= segment->GetOriginalFrom() && nextFrom < segment->GetTo())
            segment->SetTo(nextFrom);
    }
}

bool CutCollection::MergeCuts(int from, int to)
{
    if (m_Segments.size() < 2)
        return false;
    const auto isInside = [=](int row) { return from < row && row < to; };
    // The step goes on by one also after a removal: kept, the next press takes the rest.
    for (int i = 1; i < m_Segments.size(); ++i) {
        CutSegment* segment = m_Segments[i];
        const CutSegment* previous = m_Segments[i - 1];
        const bool fromInside = isInside(segment->GetFrom());
        const bool toInside = isInside(segment->GetTo());
        const bool isLast = i == m_Segments.size() - 1;
        if (!fromInside)
            continue;
        segment->MoveFrom(previous->GetFrom());
        if (toInside && !isLast) {
            segment->MoveTo(m_Segments[i + 1]->GetTo());
            m_Segments.removeAt(i + 1);
        }
        m_Segments.removeAt(i - 1);
    }
    return true;
}

bool CutCollection::RemoveSegment(CutSegment* cut)
{
    if (!m_Segments.contains(cut))
        return false;
    CutSegment* left = findNeighbour(cut, &CutSegment::GetTo, cut->GetFrom(), "Left found");
    CutSegment* right = findNeighbour(cut, &CutSegment::GetFrom, cut->GetTo(), "Right found");
    const auto isFree = [](const CutSegment* segment) {
        return segment && segment->GetState() != CutSegment::SEGMENT_LABELED;
    };
    if (isFree(left) && isFree(right)) {
        if (left->GetState() != CutSegment::SEGMENT_CUT ||
            right->GetState() != CutSegment::SEGMENT_CUT)
            return false;
        m_Segments.removeOne(cut);
        left->SetTo(right->GetTo());
        return m_Segments.removeOne(right);
    }
    // The stored end stays on the left side and moves on the right one: kept, see MergeLabels.
    if (isFree(right))
        right->MoveFrom(cut->GetFrom());
    else if (isFree(left) || (left && !right))
        left->SetTo(cut->GetTo());
    else
        return false;
    return m_Segments.removeOne(cut);
}

CutSegment* CutCollection::findNeighbour(const CutSegment* cut, int (CutSegment::*end)() const,
                                         int row, const char* message) const
{
    const auto found =
        std::find_if(m_Segments.begin(), m_Segments.end(), [=](const CutSegment* segment) {
            return segment != cut && (segment->*end)() == row;
        });
    if (found == m_Segments.end())
        return nullptr;
    qCDebug(lcCuts, "%s", message);
    return *found;
}

void CutCollection::RemoveSegments(CutSegment::SEGMENT_STATE state)
{
    for (int i = m_Segments.size() - 1; i >= 0; --i) {
        // A removal may take a neighbour with it.
        if (i < m_Segments.size() && m_Segments[i]->GetState() == state)
            RemoveSegment(m_Segments[i]);
    }
}

void CutCollection::MoveSegment(DataSet* dataSet, CutSegment* segment, int from, int to)
{
    const int index = m_Segments.indexOf(segment);
    if (index == -1 || m_Segments.size() < 2)
        return;
    if (index == 0) {
        m_Segments[1]->MoveFrom(to);
        if (from != 0)
            m_Segments.prepend(newSegment(0, from));
    } else if (index == m_Segments.size() - 1) {
        m_Segments[index - 1]->SetTo(from);
        // The tail starts where the segment does and covers it: kept.
        if (dataSet && to != dataSet->GetRowCount())
            m_Segments.append(newSegment(from, dataSet->GetRowCount()));
    } else {
        m_Segments[index - 1]->MoveTo(from);
        m_Segments[index + 1]->MoveFrom(to);
    }
    segment->MoveFrom(from);
    segment->MoveTo(to);
}

void CutCollection::Sort()
{
    std::stable_sort(
        m_Segments.begin(), m_Segments.end(),
        [](const CutSegment* a, const CutSegment* b) { return a->GetFrom() < b->GetFrom(); });
}

CutSegment* CutCollection::newSegment(int from, int to)
{
    m_Owned.push_back(std::make_unique<CutSegment>(from, to));
    return m_Owned.back().get();
}
