#pragma once

#include "constspan.h"

/// What the finite values of a span of rows come to: the lowest and the highest and where they
/// stand, of equal ones the first; their sum and number.
struct ColumnExtremes {
    double m_Low = 0;
    double m_High = 0;
    double m_Sum = 0;
    int m_Count = 0;
    /// -1 when no row of the span has a finite value.
    int m_LowRow = -1;
    int m_HighRow = -1;
    /// Some row of the span has no finite value.
    bool m_HasGap = false;

    void Add(int row, double value);
    /// Adds the extremes of rows that follow.
    void Add(const ColumnExtremes& following);
};

/// Extremes, sums and counts over blocks of rows of one attribute: blocks of 16 rows, blocks of 16
/// blocks, and so on, so that those of any long span cost few reads. Made in one pass over the
/// values, never changed. Adding up block by block also keeps rounding errors small.
class ColumnSummary
{
public:
    static constexpr int BlockRows = 16;

    explicit ColumnSummary(ConstSpan<double> values);

    /// Of the rows from up to, but without, to. Both are multiples of BlockRows; to may
    /// also be the row count.
    ColumnExtremes GetExtremes(int from, int to) const;

private:
    using Level = std::vector<ColumnExtremes>;

    static Level readRows(ConstSpan<double> values);
    static Level joinBlocks(const Level& fine);

    std::vector<Level> m_Levels;
};
