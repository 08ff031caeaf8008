#include "cutplan.h"

#include "segmentlist.h"
#include "segmentsweep.h"
#include "stoppablesort.h"
#include <tuple>

namespace
{

std::vector<PlannedCut> inRowOrder(const std::vector<RowSpan>& cuts, RowProgress& progress)
{
    std::vector<PlannedCut> plan;
    plan.reserve(cuts.size());
    for (size_t i = 0; i < cuts.size(); ++i)
        plan.push_back({cuts[i], int(i), -1});
    const auto isInFront = [](const PlannedCut& a, const PlannedCut& b) {
        return std::tie(a.m_Rows.m_From, a.m_Rows.m_To, b.m_Order) <
               std::tie(b.m_Rows.m_From, b.m_Rows.m_To, a.m_Order);
    };
    if (!StoppableSort::Run(plan, isInFront, progress))
        plan.clear();
    return plan;
}

void groupByHolder(std::vector<PlannedCut>& plan)
{
    const auto isInFront = [](const PlannedCut& a, const PlannedCut& b) {
        return a.m_Holder < b.m_Holder;
    };
    // Only segments that overlap or stand in another order than their rows do need it.
    if (!std::is_sorted(plan.begin(), plan.end(), isInFront))
        std::stable_sort(plan.begin(), plan.end(), isInFront);
}

} // namespace

qint64 CountPlanRows(size_t cuts)
{
    return StoppableSort::CountRows(cuts) + qint64(cuts);
}

std::vector<PlannedCut> PlanCuts(const SegmentList& segments, const std::vector<RowSpan>& cuts,
                                 RowProgress& progress)
{
    std::vector<PlannedCut> plan = inRowOrder(cuts, progress);
    SegmentSweep sweep(segments);
    for (PlannedCut& cut : plan) {
        cut.m_Holder = sweep.Find(cut.m_Rows.m_From, cut.m_Rows.m_To);
        if (!progress.Advance())
            return {};
    }
    const auto isRefused = [](const PlannedCut& cut) { return cut.m_Holder == -1; };
    plan.erase(std::remove_if(plan.begin(), plan.end(), isRefused), plan.end());
    groupByHolder(plan);
    return plan;
}

std::vector<CutPiece> PiecesOfPoints(const std::vector<PlannedCut>& plan,
                                     const SegmentList& segments, CutSegment::SEGMENT_STATE state)
{
    std::vector<CutPiece> pieces(plan.size());
    // Cuts behind the present one, the nearest on top, without those that a nearer one precedes in
    // time: the top one that was made before is where the piece ends at first.
    std::vector<const PlannedCut*> behind;
    for (size_t i = plan.size(); i-- > 0;) {
        const PlannedCut& cut = plan[i];
        if (!behind.empty() && behind.back()->m_Holder != cut.m_Holder)
            behind.clear();
        while (!behind.empty() && behind.back()->m_Order > cut.m_Order)
            behind.pop_back();
        const int end =
            behind.empty() ? segments.Get(cut.m_Holder)->GetTo() : behind.back()->m_Rows.m_From;
        pieces[i] = {cut.m_Holder, cut.m_Rows.m_From, end, state};
        behind.push_back(&cut);
    }
    return pieces;
}

std::vector<CutPiece> PiecesOfRanges(const std::vector<PlannedCut>& plan,
                                     const SegmentList& segments, CutSegment::SEGMENT_STATE state)
{
    std::vector<CutPiece> pieces;
    pieces.reserve(2 * plan.size());
    size_t first = 0;
    for (const PlannedCut& cut : plan) {
        const auto [from, to] = cut.m_Rows;
        if (!pieces.empty() && pieces.back().m_Holder != cut.m_Holder)
            first = pieces.size();
        // Only a range without rows fits into a piece in front of the last one.
        size_t next = pieces.size();
        while (next > first && pieces[next - 1].m_From >= to)
            --next;
        const int end =
            next < pieces.size() ? pieces[next].m_From : segments.Get(cut.m_Holder)->GetTo();
        pieces.insert(
            pieces.begin() + qptrdiff(next),
            {{cut.m_Holder, from, to, state}, {cut.m_Holder, to, end, CutSegment::SEGMENT_CUT}});
    }
    return pieces;
}
