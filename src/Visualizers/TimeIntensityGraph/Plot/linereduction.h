#pragma once

#include "columnsummary.h"
#include "pixelcolumns.h"
#include <limits>
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
/// Rows are grouped into columns much narrower than a pixel, of which the line takes the first, the
/// lowest, the highest and the last row, and both rows of a jump that makes up the column. Rows
/// without a finite value break the line, also inside a column, unless it has more gaps than a few.
class LineReduction
{
public:
    LineReduction(const DataSet& data, int attribute, const PixelColumns& columns)
        : m_Data(data), m_Attribute(attribute), m_Columns(columns)
    {
    }

    /// The width of the columns, in logical pixels, for that many device pixels in each of these.
    static double GetColumnWidth(double scale);

    /// The points for these rows, which must all exist. No two breaks follow each other.
    std::vector<LinePoint> Reduce(const RowSpan& rows) const;

private:
    struct Contents {
        ColumnExtremes m_Extremes;
        /// The row before the jump, -1 without one.
        int m_JumpRow = -1;
        /// How often the value changes from one row to the next; not counted in a summary.
        int m_Changes = std::numeric_limits<int>::max();
    };

    double value(int row) const;
    int findChange(int from, int to, bool isFinite) const;
    bool canSummarize(const RowSpan& rows, double columnRows) const;
    Contents readColumn(const RowSpan& rows, double columnRows) const;
    Contents readRows(const RowSpan& rows) const;
    void appendRows(std::vector<LinePoint>& points, const RowSpan& rows) const;
    void appendColumn(std::vector<LinePoint>& points, const RowSpan& rows, double columnRows) const;
    void appendPieces(std::vector<LinePoint>& points, const RowSpan& rows, int splits) const;
    void appendStroke(std::vector<LinePoint>& points, const RowSpan& rows,
                      const Contents& contents) const;

    const DataSet& m_Data;
    const int m_Attribute;
    const PixelColumns m_Columns;
};
