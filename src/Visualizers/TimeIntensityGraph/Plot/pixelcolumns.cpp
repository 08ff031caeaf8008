#include "pixelcolumns.h"

#include "columnsummary.h"
#include "pixelmath.h"
#include "rowsearch.h"
#include <cmath>

// On average over some rows; below 0 where they stand from right to left.
double PixelColumns::rowWidth(const RowSpan& rows) const
{
    const int steps = std::min(ColumnSummary::BlockRows, rows.GetLength() - 1);
    return steps > 0 ? (place(rows.m_From + steps) - place(rows.m_From)) / steps : 0;
}

PixelColumns::Column PixelColumns::GetFirst(const RowSpan& rows) const
{
    const int turn = m_Axis.OrderedEnd(rows.m_From - m_Origin);
    const RowSpan ordered{rows.m_From, std::min(turn, rows.m_To - m_Origin) + m_Origin};
    const double width = rowWidth(ordered);
    const double columnRows = m_ColumnWidth / std::abs(width);
    if (columnRows < FewestRows)
        return {std::min(ordered.m_From + FewestRows, ordered.m_To), columnRows};
    const int blockRows = columnRows < ColumnSummary::BlockRows ? 1 : ColumnSummary::BlockRows;
    return {findEnd(ordered, blockRows, blockRows * width), columnRows};
}

// A block belongs to the column in which it ends.
int PixelColumns::findEnd(const RowSpan& rows, int blockRows, double blockWidth) const
{
    const int first = rows.m_From - rows.m_From % blockRows + blockRows;
    if (first >= rows.m_To)
        return rows.m_To;
    const double direction = blockWidth < 0 ? -1 : 1;
    const auto distance = [&](int block) { return direction * place(first + block * blockRows); };
    const double start = distance(0);
    const double edge = std::ceil(start / m_ColumnWidth) * m_ColumnWidth;
    const int blocks = (rows.m_To - first + blockRows - 1) / blockRows;
    const int guess = TruncateToInt((edge - start) / std::abs(blockWidth));
    const int end =
        EndOfHolding({1, blocks + 1}, guess, [&](int block) { return distance(block) <= edge; });
    return std::min(first + (end - 1) * blockRows, rows.m_To);
}
