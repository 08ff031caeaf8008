#pragma once

#include "columnsummary.h"
#include <QtGlobal>
#include <vector>

class DataSet;

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
/// highest and the last row are kept, and both rows of a jump that makes up the column. Columns are
/// counted from the first row of the recording, so that neighbouring tiles agree. Rows without a
/// finite value break the line.
class LineReduction
{
public:
    /// columnRows: rows in a column on average; all rows are kept when there are no
    /// more of them than points of a column.
    LineReduction(const DataSet& data, int attribute, double columnRows);

    /// The column size for rows of that width in device pixels.
    static double ColumnRows(double rowWidth);

    /// The points for the rows from up to, but without, to; all must exist. Breaks stand only
    /// between points.
    std::vector<LinePoint> Reduce(int from, int to) const;

private:
    struct Column {
        ColumnExtremes m_Extremes;
        /// The row before the jump, -1 without one.
        int m_JumpRow = -1;
        /// One value but for a step or a spike.
        bool m_IsFlat = false;
    };

    /// The first row of a column.
    int columnStart(qint64 column) const;
    double value(int row) const;
    Column readColumn(int from, int to) const;
    void appendRows(std::vector<LinePoint>& points, int from, int to) const;
    void appendColumn(std::vector<LinePoint>& points, int from, int to) const;

    const DataSet& m_Data;
    const int m_Attribute;
    const double m_ColumnRows;
    // Columns start at multiples of this many rows.
    const int m_Unit;
};
