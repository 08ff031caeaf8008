#pragma once

#include <QtGlobal>
#include <vector>

class DataSet;

/// The lowest and highest finite value of a span of rows and where they stand. The first of equal
/// values counts.
struct ColumnExtremes {
    double m_Low = 0;
    double m_High = 0;
    /// -1 when no row of the span has a finite value.
    int m_LowRow = -1;
    int m_HighRow = -1;
    /// Some row of the span has no finite value.
    bool m_HasGap = false;

    void Add(int row, double value);
    /// Adds the extremes of rows that follow.
    void Add(const ColumnExtremes& following);
};

/// Extremes over blocks of rows of one attribute: blocks of 16 rows, blocks of 16 blocks, and so
/// on, so that the extremes of any long span cost few reads. Made in one pass, never changed: it
/// belongs to one revision of the data set.
class ColumnSummary
{
public:
    static constexpr int BlockRows = 16;

    ColumnSummary(const DataSet& data, int attribute);

    quint64 GetRevision() const { return m_Revision; }
    /// The extremes of rows from up to, but without, to. Both are multiples of BlockRows; to may
    /// also be the row count.
    ColumnExtremes GetExtremes(int from, int to) const;

private:
    using Level = std::vector<ColumnExtremes>;

    static Level readRows(const DataSet& data, int attribute);
    static Level joinBlocks(const Level& fine);

    quint64 m_Revision;
    std::vector<Level> m_Levels;
};
