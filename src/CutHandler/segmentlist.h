#pragma once

#include <cstddef>
#include <limits>
#include <vector>

class CutSegment;

/// What both ends of a segment may be, limits included.
struct EndLimits {
    int m_LowestFrom = std::numeric_limits<int>::min();
    int m_HighestFrom = std::numeric_limits<int>::max();
    int m_LowestTo = std::numeric_limits<int>::min();
    int m_HighestTo = std::numeric_limits<int>::max();
};

/// Segments in the order of a recording, with a search by their ends.
///
/// The search answers as a scan from the front would, whether the segments are sorted, overlap
/// or leave gaps, but passes over whole blocks that hold nothing of the kind. Segments tell
/// their list when an end changes.
class SegmentList
{
public:
    int GetCount() const { return int(m_Segments.size()); }
    /// No bounds check.
    CutSegment* Get(int index) const { return m_Segments[size_t(index)]; }
    std::vector<CutSegment*>::const_iterator begin() const { return m_Segments.begin(); }
    std::vector<CutSegment*>::const_iterator end() const { return m_Segments.end(); }

    void Insert(int index, CutSegment* segment);
    void Append(CutSegment* segment) { Insert(GetCount(), segment); }
    /// The index that the segment had, -1 when it was not in the list.
    int Remove(const CutSegment* segment);
    /// Empties the list for changes to many segments at once.
    std::vector<CutSegment*> TakeAll();
    /// Fills an empty list.
    void PutAll(std::vector<CutSegment*> segments);

    bool Contains(const CutSegment* segment) const;
    /// -1 when the segment is not in the list.
    int IndexOf(const CutSegment* segment) const;
    /// The index of the first segment at start or later with both ends inside limits, or -1.
    int FindNext(const EndLimits& limits, int start = 0) const;

    /// A segment's ends are no longer from and to; called by the segment.
    void EndsChanged(const CutSegment* segment, int from, int to);

private:
    struct Ends {
        int m_From;
        int m_To;
    };
    int indexOf(const CutSegment* segment, const Ends& ends) const;
    const EndLimits& blockLimits(size_t block) const;
    EndLimits computeBlockLimits(size_t block) const;
    void forgetBlocks(size_t index) const;

    std::vector<CutSegment*> m_Segments;
    // The ends of the segments again, side by side, so that a scan touches nothing else.
    std::vector<Ends> m_Ends;
    // The limits that hold for all ends of a block; those of later blocks are not known yet.
    mutable std::vector<EndLimits> m_Blocks;
};
