#include "cutcollection.h"

#include "cutplan.h"
#include "dataset.h"
#include "patternsdataobject.h"
#include "rowprogress.h"
#include <QLoggingCategory>
#include <QSet>
#include <algorithm>

Q_LOGGING_CATEGORY(lcCuts, "skerrymoor.cuts", QtWarningMsg)

namespace
{

// The first row of a segment is not above from, and its end not below to.
EndLimits holding(int from, int to)
{
    EndLimits limits;
    limits.m_HighestFrom = from;
    limits.m_LowestTo = to;
    return limits;
}

EndLimits startingAt(int row)
{
    EndLimits limits;
    limits.m_LowestFrom = limits.m_HighestFrom = row;
    return limits;
}

EndLimits endingAt(int row)
{
    EndLimits limits;
    limits.m_LowestTo = limits.m_HighestTo = row;
    return limits;
}

// A cut shortens the segment it is made in, but not that segment's stored end.
void restoreStoredEnds(const std::vector<CutSegment*>& segments)
{
    for (size_t i = 0; i < segments.size(); ++i) {
        CutSegment* segment = segments[i];
        segment->SetFrom(segment->GetOriginalFrom());
        segment->SetTo(segment->GetOriginalTo());
        if (i + 1 == segments.size())
            continue;
        const int nextFrom = segments[i + 1]->GetOriginalFrom();
        if (nextFrom >= segment->GetOriginalFrom() && nextFrom < segment->GetTo())
            segment->SetTo(nextFrom);
    }
}

void closeGaps(const std::vector<CutSegment*>& segments, int gap)
{
    CutSegment* previous = nullptr;
    for (CutSegment* segment : segments) {
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

// Fewer than there are pieces when the progress asked to stop.
std::vector<std::unique_ptr<CutSegment>> makeSegments(const std::vector<CutPiece>& pieces,
                                                      RowProgress& progress)
{
    std::vector<std::unique_ptr<CutSegment>> made;
    made.reserve(pieces.size());
    for (size_t i = 0; i < pieces.size() && progress.Advance(); ++i) {
        made.push_back(std::make_unique<CutSegment>(pieces[i].m_From, pieces[i].m_OriginalTo));
        made.back()->SetState(pieces[i].m_State);
    }
    return made;
}

void logRefusals(size_t count)
{
    for (size_t i = 0; i < count && lcCuts().isDebugEnabled(); ++i)
        qCDebug(lcCuts, "Insert error - Fix me");
}

} // namespace

CutSegment* CutCollection::FindSegment(int row, int& index) const
{
    const int found = m_Segments.FindNext(holding(row, row));
    index = std::max(found, 0);
    return found == -1 ? nullptr : m_Segments.Get(found);
}

int CutCollection::FindNextTouching(int from, int to, int start) const
{
    return m_Segments.FindNext(holding(to, from), start);
}

QList<CutSegment*> CutCollection::GetSegments(int from, int to) const
{
    EndLimits inside;
    inside.m_LowestFrom = from;
    inside.m_HighestTo = to;
    QList<CutSegment*> segments;
    for (int i = m_Segments.FindNext(inside); i != -1; i = m_Segments.FindNext(inside, i + 1))
        segments.append(m_Segments.Get(i));
    return segments;
}

int CutCollection::CountSegments(CutSegment::SEGMENT_STATE state) const
{
    return int(std::count_if(m_Segments.begin(), m_Segments.end(), [=](const CutSegment* segment) {
        return segment->GetState() == state;
    }));
}

CutSegment* CutCollection::InsertCut(int from, int to, CutSegment::SEGMENT_STATE state)
{
    if (m_Segments.GetCount() == 0) {
        m_Segments.Append(newSegment(from, to));
        return m_Segments.Get(0);
    }
    const int index = from > to ? -1 : m_Segments.FindNext(holding(from, to));
    if (index == -1) {
        qCDebug(lcCuts, "Insert error - Fix me");
        return nullptr;
    }
    CutSegment* holder = m_Segments.Get(index);
    const int oldTo = holder->GetTo();
    holder->SetTo(from);
    CutSegment* cut = newSegment(from, to);
    cut->SetState(state);
    m_Segments.Insert(index + 1, newSegment(to, oldTo));
    m_Segments.Insert(index + 1, cut);
    return cut;
}

CutSegment* CutCollection::InsertCut(int at, CutSegment::SEGMENT_STATE state)
{
    if (m_Segments.GetCount() == 0)
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
    m_Segments.Insert(index + 1, right);
    return right;
}

bool CutCollection::InsertCutsAt(const std::vector<int>& rows, CutSegment::SEGMENT_STATE state,
                                 Progress& progress)
{
    std::vector<RowSpan> cuts;
    cuts.reserve(rows.size());
    for (const int row : rows)
        cuts.push_back({row, row});
    RowProgress steps(progress, CountPlanRows(rows.size()) + qint64(rows.size()));
    const std::vector<PlannedCut> plan = PlanCuts(m_Segments, cuts, steps);
    logRefusals(rows.size() - plan.size());
    return spliceIn(PiecesOfPoints(plan, m_Segments, state), steps);
}

bool CutCollection::InsertRanges(const std::vector<RowSpan>& ranges,
                                 CutSegment::SEGMENT_STATE state, Progress& progress)
{
    if (m_Segments.GetCount() == 0) {
        for (const RowSpan& range : ranges)
            InsertCut(range.m_From, range.m_To, state);
        return true;
    }
    RowProgress steps(progress, CountPlanRows(ranges.size()) + 2 * qint64(ranges.size()));
    const std::vector<PlannedCut> plan = PlanCuts(m_Segments, ranges, steps);
    logRefusals(ranges.size() - plan.size());
    return spliceIn(PiecesOfRanges(plan, m_Segments, state), steps);
}

// Puts new pieces, in their order, behind the segments that they come from.
bool CutCollection::spliceIn(const std::vector<CutPiece>& pieces, RowProgress& progress)
{
    std::vector<std::unique_ptr<CutSegment>> made = makeSegments(pieces, progress);
    if (progress.IsStopped())
        return false;
    const std::vector<CutSegment*> segments = m_Segments.TakeAll();
    std::vector<CutSegment*> spliced;
    spliced.reserve(segments.size() + pieces.size());
    size_t next = 0;
    for (size_t holder = 0; holder < segments.size(); ++holder) {
        const int end = segments[holder]->GetTo();
        spliced.push_back(segments[holder]);
        for (; next < pieces.size() && pieces[next].m_Holder == int(holder); ++next) {
            spliced.back()->SetTo(pieces[next].m_From);
            spliced.push_back(made[next].get());
        }
        spliced.back()->SetTo(end);
    }
    m_Segments.PutAll(std::move(spliced));
    std::move(made.begin(), made.end(), std::back_inserter(m_Owned));
    return true;
}

std::optional<CutReview> CutCollection::ReviewCuts(const std::vector<RowSpan>& cuts,
                                                   Progress& progress) const
{
    RowProgress steps(progress, CountPlanRows(cuts.size()));
    const std::vector<PlannedCut> plan = PlanCuts(m_Segments, cuts, steps);
    if (steps.IsStopped())
        return std::nullopt;
    CutReview review;
    review.m_Count = int(plan.size());
    for (const PlannedCut& cut : plan) {
        const CutSegment* holder = m_Segments.Get(cut.m_Holder);
        if (holder->GetState() == CutSegment::SEGMENT_LABELED &&
            cut.m_Rows.m_From < holder->GetTo())
            review.m_InLabels.push_back(cut.m_Order);
    }
    return review;
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
    std::vector<CutSegment*> segments = m_Segments.TakeAll();
    restoreStoredEnds(segments);
    closeGaps(segments, gap);
    m_Segments.PutAll(std::move(segments));
}

bool CutCollection::MergeCuts(int from, int to)
{
    if (m_Segments.GetCount() < 2)
        return false;
    const auto isInside = [=](int row) { return from < row && row < to; };
    const std::vector<CutSegment*> segments = m_Segments.TakeAll();
    std::vector<CutSegment*> merged{segments.front()};
    for (size_t i = 1; i < segments.size(); ++i) {
        CutSegment* segment = segments[i];
        if (!isInside(segment->GetFrom())) {
            merged.push_back(segment);
            continue;
        }
        const bool takesNext = isInside(segment->GetTo()) && i + 1 < segments.size();
        segment->MoveFrom(merged.back()->GetFrom());
        merged.back() = segment;
        if (takesNext)
            segment->MoveTo(segments[++i]->GetTo());
        // After a removal one segment goes unvisited: the next press takes the rest.
        if (i + 1 < segments.size())
            merged.push_back(segments[++i]);
    }
    m_Segments.PutAll(std::move(merged));
    return true;
}

std::optional<SegmentRemoval> CutCollection::TakeOut(CutSegment* cut)
{
    if (!m_Segments.Contains(cut))
        return std::nullopt;
    CutSegment* left = findNeighbour(cut, endingAt(cut->GetFrom()), "Left found");
    CutSegment* right = findNeighbour(cut, startingAt(cut->GetTo()), "Right found");
    const auto isFree = [](const CutSegment* segment) {
        return segment && segment->GetState() != CutSegment::SEGMENT_LABELED;
    };
    SegmentRemoval removal;
    if (isFree(left) && isFree(right)) {
        if (left->GetState() != CutSegment::SEGMENT_CUT ||
            right->GetState() != CutSegment::SEGMENT_CUT)
            return std::nullopt;
        removal = {left, left->GetEnds(), right, right->GetEnds(), m_Segments.Remove(right), -1};
        // A zero-length segment can lie between two sides that are one and the same.
        left->SetTo(right->GetTo());
    } else if (isFree(right)) {
        // MergeLabels returns the left side to the end that it had with the segment, but the
        // right side to the start that it has without.
        removal = {nullptr, {}, right, right->GetEnds(), -1, -1};
        right->MoveFrom(cut->GetFrom());
    } else if (isFree(left) || (left && !right)) {
        removal = {left, left->GetEnds(), nullptr, {}, -1, -1};
        left->SetTo(cut->GetTo());
    } else {
        return std::nullopt;
    }
    removal.m_Index = m_Segments.Remove(cut);
    return removal;
}

std::vector<CutSegment*> CutCollection::overlapping(int from, int to) const
{
    EndLimits limits;
    limits.m_HighestFrom = to - 1;
    limits.m_LowestTo = from + 1;
    std::vector<CutSegment*> segments;
    for (int i = m_Segments.FindNext(limits); i != -1; i = m_Segments.FindNext(limits, i + 1))
        segments.push_back(m_Segments.Get(i));
    return segments;
}

CutSegment::SEGMENT_STATE CutCollection::GetStrongestState(int from, int to) const
{
    auto strongest = CutSegment::SEGMENT_CUT;
    for (const CutSegment* segment : overlapping(from, to)) {
        if (segment->GetState() == CutSegment::SEGMENT_LABELED)
            return CutSegment::SEGMENT_LABELED;
        if (segment->GetState() == CutSegment::SEGMENT_RESULT)
            strongest = CutSegment::SEGMENT_RESULT;
    }
    return strongest;
}

bool CutCollection::MergePlain(int from, int to)
{
    const std::vector<CutSegment*> segments = overlapping(from, to);
    if (segments.size() < 2 || segments.front()->GetFrom() > from || segments.back()->GetTo() < to)
        return false;
    for (size_t i = 0; i < segments.size(); ++i) {
        if (segments[i]->GetState() != CutSegment::SEGMENT_CUT ||
            (i > 0 && segments[i - 1]->GetTo() != segments[i]->GetFrom()))
            return false;
    }
    const int end = segments.back()->GetTo();
    std::for_each(segments.begin() + 1, segments.end(),
                  [this](const CutSegment* segment) { m_Segments.Remove(segment); });
    segments.front()->MoveTo(end);
    return true;
}

void CutCollection::CopyFrom(const CutCollection& other)
{
    m_Segments.TakeAll();
    std::vector<CutSegment*> copies;
    for (const CutSegment* segment : other.m_Segments) {
        CutSegment* copy = newSegment(segment->GetOriginalFrom(), segment->GetOriginalTo());
        copy->SetFrom(segment->GetFrom());
        copy->SetTo(segment->GetTo());
        copy->SetState(segment->GetState());
        copy->SetColor(segment->GetColor());
        copies.push_back(copy);
    }
    m_Segments.PutAll(std::move(copies));
}

CutSegment* CutCollection::findNeighbour(const CutSegment* cut, const EndLimits& limits,
                                         const char* message) const
{
    int index = m_Segments.FindNext(limits);
    if (index != -1 && m_Segments.Get(index) == cut)
        index = m_Segments.FindNext(limits, index + 1);
    if (index == -1)
        return nullptr;
    qCDebug(lcCuts, "%s", message);
    return m_Segments.Get(index);
}

void CutCollection::RemoveSegments(CutSegment::SEGMENT_STATE state)
{
    for (int i = m_Segments.GetCount() - 1; i >= 0; --i) {
        // A removal may take a neighbour with it.
        if (i < m_Segments.GetCount() && m_Segments.Get(i)->GetState() == state)
            RemoveSegment(m_Segments.Get(i));
    }
}

void CutCollection::MoveSegment(DataSet* dataSet, CutSegment* segment, int from, int to)
{
    const int index = m_Segments.IndexOf(segment);
    const int last = m_Segments.GetCount() - 1;
    if (index == -1 || last < 1)
        return;
    if (index == 0) {
        m_Segments.Get(1)->MoveFrom(to);
        if (from != 0)
            m_Segments.Insert(0, newSegment(0, from));
    } else if (index == last) {
        m_Segments.Get(index - 1)->SetTo(from);
        // The tail starts where the segment does and covers it: those rows belong to both.
        if (dataSet && to != dataSet->GetRowCount())
            m_Segments.Append(newSegment(from, dataSet->GetRowCount()));
    } else {
        m_Segments.Get(index - 1)->MoveTo(from);
        m_Segments.Get(index + 1)->MoveFrom(to);
    }
    segment->MoveFrom(from);
    segment->MoveTo(to);
}

void CutCollection::Sort()
{
    std::vector<CutSegment*> segments = m_Segments.TakeAll();
    std::stable_sort(segments.begin(), segments.end(),
                     [](const auto* a, const auto* b) { return a->GetFrom() < b->GetFrom(); });
    m_Segments.PutAll(std::move(segments));
}

CutSegment* CutCollection::newSegment(int from, int to)
{
    m_Owned.push_back(std::make_unique<CutSegment>(from, to));
    return m_Owned.back().get();
}

std::optional<RowSpan> ResizeLimits(const CutCollection& cuts, const CutSegment* segment, int rows)
{
    const int index = cuts.IndexOf(segment);
    const int last = cuts.GetSegmentCount() - 1;
    if (index == -1 || last < 1)
        return std::nullopt;
    return RowSpan{index == 0 ? 0 : cuts.GetSegment(index - 1)->GetFrom(),
                   index == last ? rows : cuts.GetSegment(index + 1)->GetTo()};
}
