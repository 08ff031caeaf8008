#pragma once

#include "cutsegment.h"
#include <QList>
#include <memory>
#include <vector>

/// The ordered partition of a recording's rows into segments.
///
/// Segments that leave the list stay alive as long as the collection: views may still point at
/// them.
class CutCollection
{
public:
    CutCollection() = default;
    CutCollection(const CutCollection&) = delete;
    CutCollection& operator=(const CutCollection&) = delete;

    int GetSegmentCount() const { return m_Segments.size(); }
    /// No bounds check.
    CutSegment* GetSegment(int index) const { return m_Segments.at(index); }
    /// The first segment whose span holds row, both ends included: a shared boundary row belongs
    /// to the segment on its left. Null and index 0 if there is none.
    CutSegment* FindSegment(int row, int& index) const;
    /// All segments that lie wholly inside from and to.
    QList<CutSegment*> GetSegments(int from, int to) const;
    int CountSegments(CutSegment::SEGMENT_STATE state) const;

    /// Cuts [from, to] out of the segment that holds it. The very first segment keeps the plain
    /// state, whatever is asked for. Null, and nothing changed, when the range crosses a
    /// boundary.
    CutSegment* InsertCut(int from, int to, CutSegment::SEGMENT_STATE state);
    /// Splits the segment that holds row at; the new segment is the right part. Null when there
    /// is none.
    CutSegment* InsertCut(int at, CutSegment::SEGMENT_STATE state);

private:
    CutSegment* newSegment(int from, int to);

    QList<CutSegment*> m_Segments;
    // Owns every segment that was ever in the list.
    std::vector<std::unique_ptr<CutSegment>> m_Owned;
};
