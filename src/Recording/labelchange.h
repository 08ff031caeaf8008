#pragma once

#include "cutsegment.h"
#include "rowspan.h"
#include <QList>
#include <vector>

class BehaviorLabel;

/// Everything about a segment that labelling can change.
struct SegmentRecord {
    SegmentEnds m_Ends;
    /// Whether it stands among the segments of the recording.
    bool m_IsListed = false;
    /// Its place there, told only where the segment comes to the list or leaves it.
    int m_Index = -1;
    CutSegment::SEGMENT_STATE m_State = CutSegment::SEGMENT_CUT;
    QColor m_Color;
    /// The behaviour whose instance it is, and its place there; null and -1 without one.
    BehaviorLabel* m_Behavior = nullptr;
    int m_Place = -1;
};

/// A segment before and after.
struct SegmentChange {
    CutSegment* m_Segment = nullptr;
    SegmentRecord m_Before;
    SegmentRecord m_After;
};

/// A behaviour before and after; its place among the behaviours is -1 where it was or is none of
/// them.
struct BehaviorChange {
    BehaviorLabel* m_Behavior = nullptr;
    int m_IndexBefore = -1;
    int m_IndexAfter = -1;
    QString m_NameBefore;
    QString m_NameAfter;
};

/// What an operation on labels has done, in the order in which it was done, so that it can be
/// told, written down or taken back. Segments and behaviours live as long as the recording.
struct LabelChange {
    std::vector<SegmentChange> m_Segments;
    std::vector<BehaviorChange> m_Behaviors;
    /// Segments that the operation was to change and could not.
    QList<CutSegment*> m_Refused;
    /// Spans of rows that could not be cut out, since they cross a boundary.
    std::vector<RowSpan> m_RefusedSpans;

    /// Nothing was changed; something may have been refused.
    bool IsEmpty() const { return m_Segments.empty() && m_Behaviors.empty(); }
    /// Adds what was done after this.
    void Append(const LabelChange& next);
};
