#include "linereduction.h"

#include "columnsummary.h"
#include "dataset.h"
#include <algorithm>
#include <cmath>

namespace
{
// Lines overlap and darken inside a pixel; with fewer columns the shade of dense signals changes.
constexpr double columnsPerPixel = 8;
// Below this, reading the rows is as quick as having a summary made.
constexpr int longRecording = 1 << 17;

void appendBreak(std::vector<LinePoint>& points)
{
    if (!points.empty() && !points.back().IsBreak())
        points.push_back(LinePoint::Break());
}

void appendLater(std::vector<LinePoint>& points, int row, double value)
{
    if (points.empty() || points.back().m_Row < row)
        points.push_back({row, value});
}
} // namespace

LineReduction::LineReduction(const DataSet& data, int attribute, int origin, int columnRows)
    : m_Data(data), m_Attribute(attribute), m_Origin(origin), m_ColumnRows(columnRows),
      m_UsesSummary(columnRows % ColumnSummary::BlockRows == 0 &&
                    origin % ColumnSummary::BlockRows == 0 && data.GetRowCount() > longRecording)
{
}

int LineReduction::ColumnRows(double rowWidth)
{
    constexpr double most = 1 << 24;
    // Also false for a width that is no number.
    if (!(rowWidth * columnsPerPixel * most > 1))
        return int(most);
    const int rows = int(1 / (columnsPerPixel * rowWidth));
    constexpr int block = ColumnSummary::BlockRows;
    return rows < block ? rows : rows / block * block;
}

std::vector<LinePoint> LineReduction::Reduce(int from, int to) const
{
    std::vector<LinePoint> points;
    if (m_ColumnRows < 2) {
        appendRows(points, from, to);
        return points;
    }
    points.reserve(size_t((to - from) / m_ColumnRows + 2) * 4);
    for (int row = from; row < to;) {
        const int columnEnd = row - (row - m_Origin) % m_ColumnRows + m_ColumnRows;
        const int end = std::min(columnEnd, to);
        appendColumn(points, row, end);
        row = end;
    }
    return points;
}

double LineReduction::value(int row) const
{
    return m_Data.GetRow(row)->GetValue(m_Attribute);
}

void LineReduction::appendRows(std::vector<LinePoint>& points, int from, int to) const
{
    points.reserve(size_t(std::max(to - from, 0)));
    for (int row = from; row < to; ++row) {
        const double rowValue = value(row);
        if (std::isfinite(rowValue))
            points.push_back({row, rowValue});
        else
            appendBreak(points);
    }
}

void LineReduction::appendColumn(std::vector<LinePoint>& points, int from, int to) const
{
    const ColumnExtremes found = extremes(from, to);
    if (found.m_LowRow < 0) {
        appendBreak(points);
        return;
    }
    const double first = value(from);
    if (std::isfinite(first))
        points.push_back({from, first});
    else
        appendBreak(points);

    const LinePoint low{found.m_LowRow, found.m_Low};
    const LinePoint high{found.m_HighRow, found.m_High};
    const bool lowFirst = low.m_Row < high.m_Row;
    appendLater(points, lowFirst ? low.m_Row : high.m_Row, lowFirst ? low.m_Value : high.m_Value);
    appendLater(points, lowFirst ? high.m_Row : low.m_Row, lowFirst ? high.m_Value : low.m_Value);

    const double last = value(to - 1);
    if (found.m_HasGap)
        appendBreak(points);
    if (std::isfinite(last))
        appendLater(points, to - 1, last);
}

ColumnExtremes LineReduction::extremes(int from, int to) const
{
    constexpr int block = ColumnSummary::BlockRows;
    if (m_UsesSummary && from % block == 0 && to % block == 0)
        return m_Data.GetColumnSummary(m_Attribute).GetExtremes(from, to);
    ColumnExtremes found;
    for (int row = from; row < to; ++row)
        found.Add(row, value(row));
    return found;
}
