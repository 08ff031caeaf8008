#pragma once

/// A span of rows, both ends included, and the row that departs most from the line between them.
struct PIPSegment {
    /// The best distance of a segment that has no row to be split at.
    static constexpr double NoDistance = -100.0;

    int m_Start = 0;
    int m_End = 0;
    int m_BestIndex = -1;
    double m_BestDistance = NoDistance;
};
