#pragma once

#include <vector>

class DataSet;
struct ColumnExtremes;

/// A row that a line passes through, or a break in the line.
struct LinePoint {
    int m_Row;
    double m_Value;

    static LinePoint Break() { return {-1, 0}; }
    bool IsBreak() const { return m_Row < 0; }
};

/// The rows that a line has to pass through to look as if it passed through all of them.
///
/// Rows are grouped into columns much narrower than a pixel, of which the first, the lowest, the
/// highest and the last row are kept. Columns are counted from an origin row, so that the same
/// row gives the same points in neighbouring tiles. Rows without a finite value break the line.
class LineReduction
{
public:
    /// columnRows: rows in a column; below 2 all rows are kept.
    LineReduction(const DataSet& data, int attribute, int origin, int columnRows);

    /// The column size for rows of that width in device pixels.
    static int ColumnRows(double rowWidth);

    /// The points for the rows from up to, but without, to; all must exist. Breaks stand only
    /// between points.
    std::vector<LinePoint> Reduce(int from, int to) const;

private:
    double value(int row) const;
    ColumnExtremes extremes(int from, int to) const;
    void appendRows(std::vector<LinePoint>& points, int from, int to) const;
    void appendColumn(std::vector<LinePoint>& points, int from, int to) const;

    const DataSet& m_Data;
    const int m_Attribute;
    const int m_Origin;
    const int m_ColumnRows;
    const bool m_UsesSummary;
};
