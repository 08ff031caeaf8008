#include "linereduction.h"

#include "dataset.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace
{
// Lines overlap and darken inside a pixel; with fewer columns the shade of dense signals changes.
constexpr double columnsPerPixel = 8;
constexpr int pointsPerColumn = 4;
// Up to here all rows of a column are kept that holds one value but for a step or a spike, which
// costs little: the strokes of equal rows are too short to be drawn at full strength, and one
// stroke in their place would be darker.
constexpr double mostFlatRows = 48;
constexpr int mostChanges = 2;
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

LineReduction::LineReduction(const DataSet& data, int attribute, double columnRows)
    : m_Data(data), m_Attribute(attribute), m_ColumnRows(columnRows),
      m_Unit(columnRows < ColumnSummary::BlockRows ? 1 : ColumnSummary::BlockRows)
{
}

double LineReduction::ColumnRows(double rowWidth)
{
    constexpr double most = 1 << 30;
    const double rows = 1 / (columnsPerPixel * rowWidth);
    // Also false for a width that is no number.
    return rows > 0 && rows < most ? rows : most;
}

int LineReduction::columnStart(qint64 column) const
{
    const double units = std::floor(double(column) * m_ColumnRows / m_Unit);
    return int(std::min(units * m_Unit, double(std::numeric_limits<int>::max())));
}

std::vector<LinePoint> LineReduction::Reduce(int from, int to) const
{
    std::vector<LinePoint> points;
    if (m_ColumnRows < pointsPerColumn) {
        points.reserve(size_t(std::max(to - from, 0)));
        appendRows(points, from, to);
        return points;
    }
    points.reserve(size_t(std::max(to - from, 0) / m_ColumnRows + 2) * pointsPerColumn);
    auto column = qint64(from / m_ColumnRows);
    for (int row = from; row < to; ++column) {
        const int end = std::min(columnStart(column + 1), to);
        if (end <= row)
            continue;
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
    const auto [found, jump, isFlat] = readColumn(from, to);
    if (found.m_LowRow < 0) {
        appendBreak(points);
        return;
    }
    if (isFlat) {
        appendRows(points, from, to);
        return;
    }
    const double first = value(from);
    if (std::isfinite(first))
        points.push_back({from, first});
    else
        appendBreak(points);

    std::array<int, 4> rows{found.m_LowRow, found.m_HighRow, jump, jump + 1};
    const auto end = rows.begin() + (jump < 0 ? 2 : 4);
    std::sort(rows.begin(), end);
    std::for_each(rows.begin(), end, [&](int row) { appendLater(points, row, value(row)); });

    const double last = value(to - 1);
    if (found.m_HasGap)
        appendBreak(points);
    if (std::isfinite(last))
        appendLater(points, to - 1, last);
}

LineReduction::Column LineReduction::readColumn(int from, int to) const
{
    constexpr int block = ColumnSummary::BlockRows;
    const bool wholeBlocks = m_Unit == block && from % block == 0 && to % block == 0;
    if (wholeBlocks && m_ColumnRows > mostFlatRows && m_Data.GetRowCount() > longRecording)
        return {m_Data.GetColumnSummary(m_Attribute).GetExtremes(from, to), -1, false};

    // A jump that is most of the column would lean, were it drawn between the extremes.
    constexpr double most = 0.8;
    Column column;
    double widest = 0;
    int changes = 0;
    double before = std::numeric_limits<double>::quiet_NaN();
    for (int row = from; row < to; ++row) {
        const double rowValue = value(row);
        column.m_Extremes.Add(row, rowValue);
        if (std::abs(rowValue - before) > widest) {
            widest = std::abs(rowValue - before);
            column.m_JumpRow = row - 1;
        }
        changes += row > from && rowValue != before;
        before = rowValue;
    }
    column.m_IsFlat = changes <= mostChanges && m_ColumnRows <= mostFlatRows;
    const ColumnExtremes& found = column.m_Extremes;
    if (found.m_HasGap || widest < most * (found.m_High - found.m_Low))
        column.m_JumpRow = -1;
    return column;
}
