#pragma once

#include "timeaxis.h"

/// Groups the rows on a time axis into columns of pixels.
///
/// Columns are counted from where row 0 of the data would stand, so that neighbouring tiles agree
/// on them. They end where rows turn back, and where they hold many rows they start at whole blocks
/// of rows.
class PixelColumns
{
public:
    struct Column {
        int m_End;
        /// How many rows columns hold on average where this one stands.
        double m_Rows;
    };

    /// Columns of fewer rows are not looked for: their rows are handed out a few at a time.
    static constexpr int FewestRows = 4;

    /// Row origin of the data stands at the axis start. columnWidth: in logical pixels.
    PixelColumns(const TimeAxis& axis, int origin, double columnWidth)
        : m_Axis(axis), m_Origin(origin), m_Start(axis.ToExactPixel(-origin)),
          m_ColumnWidth(columnWidth)
    {
    }

    /// The column of the first of these rows, which must not be empty, from that row on.
    Column GetFirst(const RowSpan& rows) const;

private:
    double place(int row) const { return m_Axis.ToExactPixel(row - m_Origin) - m_Start; }
    double rowWidth(const RowSpan& rows) const;
    int findEnd(const RowSpan& rows, int blockRows, double blockWidth) const;

    const TimeAxis& m_Axis;
    const int m_Origin;
    const double m_Start;
    const double m_ColumnWidth;
};
