#pragma once

#include <functional>
#include <queue>
#include <vector>

class SegmentList;

/// Finds for many spans of rows, from front to back, the first segment in the list that holds
/// each. It finds what a scan over all segments would, sorted or overlapping or with gaps, but
/// walks over them once for all spans.
class SegmentSweep
{
public:
    /// segments: as they are until the last search.
    explicit SegmentSweep(const SegmentList& segments);

    /// The index of the first segment that holds rows from to to, both included; -1 if there is
    /// none. Neither row may be lower than in the search before.
    int Find(int from, int to);

private:
    const SegmentList& m_Segments;
    // Segments in the order of their first rows, and how many of them have begun.
    std::vector<int> m_ByStart;
    size_t m_Begun = 0;
    // Those that have begun; one that has ended leaves when it comes to the top.
    std::priority_queue<int, std::vector<int>, std::greater<>> m_Open;
};
