#pragma once

#include "cutsegment.h"
#include "rowspan.h"
#include <vector>

class RowProgress;
class SegmentList;

/// A cut that a segment takes.
struct PlannedCut {
    RowSpan m_Rows;
    /// Its place among the cuts that were asked for.
    int m_Order;
    /// The index of the segment that it divides.
    int m_Holder;
};

/// What CutPlan needs for so many cuts.
qint64 CountPlanRows(size_t cuts);

/// Which segment each of many cuts divides when they are made one after another: the pieces of a
/// segment stay side by side and cover what it did, so that is the segment that holds the cut
/// before the first one is made. Cuts that no segment holds are left out.
///
/// cuts: a span that starts and ends at one row, or several that don't lie inside one another
/// and are asked for from front to back.
/// Returns them by the segments' order, then by their rows, and of equal ones the last first;
/// nothing when the progress, which takes CountPlanRows, asked to stop.
std::vector<PlannedCut> PlanCuts(const SegmentList& segments, const std::vector<RowSpan>& cuts,
                                 RowProgress& progress);

/// A segment that cuts make. It ends where the next one, or a later segment than its holder,
/// starts.
struct CutPiece {
    int m_Holder;
    int m_From;
    /// The end that it is made with.
    int m_OriginalTo;
    CutSegment::SEGMENT_STATE m_State;
};

/// The segments that planned cuts at single rows make, in the order of the list.
std::vector<CutPiece> PiecesOfPoints(const std::vector<PlannedCut>& plan,
                                     const SegmentList& segments, CutSegment::SEGMENT_STATE state);
/// The same for planned ranges, of which none starts before the end of the one in front.
std::vector<CutPiece> PiecesOfRanges(const std::vector<PlannedCut>& plan,
                                     const SegmentList& segments, CutSegment::SEGMENT_STATE state);
