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

double LineReduction::GetColumnWidth(double scale)
{
    return 1 / (columnsPerPixel * scale);
}

std::vector<LinePoint> LineReduction::Reduce(const RowSpan& rows) const
{
    std::vector<LinePoint> points;
    for (int row = rows.m_From; row < rows.m_To;) {
        const PixelColumns::Column column = m_Columns.GetFirst({row, rows.m_To});
        if (column.m_Rows < PixelColumns::FewestRows)
            appendRows(points, {row, column.m_End});
        else
            appendColumn(points, {row, column.m_End}, column.m_Rows);
        row = column.m_End;
    }
    return points;
}

double LineReduction::value(int row) const
{
    return m_Data.GetRow(row)->GetValue(m_Attribute);
}

void LineReduction::appendRows(std::vector<LinePoint>& points, const RowSpan& rows) const
{
    for (int row = rows.m_From; row < rows.m_To; ++row) {
        const double rowValue = value(row);
        if (std::isfinite(rowValue))
            points.push_back({row, rowValue});
        else
            appendBreak(points);
    }
}

void LineReduction::appendColumn(std::vector<LinePoint>& points, const RowSpan& rows,
                                 double columnRows) const
{
    const Contents contents = readColumn(rows, columnRows);
    const bool isFlat = contents.m_Changes <= mostChanges && columnRows <= mostFlatRows;
    if (contents.m_Extremes.m_LowRow < 0)
        appendBreak(points);
    else if (isFlat)
        appendRows(points, rows);
    else if (contents.m_Extremes.m_HasGap)
        appendBrokenColumn(points, rows);
    else
        appendStroke(points, rows, contents);
}

void LineReduction::appendBrokenColumn(std::vector<LinePoint>& points, const RowSpan& rows) const
{
    int head = rows.m_From;
    while (std::isfinite(value(head)))
        ++head;
    int tail = rows.m_To;
    while (std::isfinite(value(tail - 1)))
        --tail;
    for (const RowSpan& piece : {RowSpan{rows.m_From, head}, {head, tail}, {tail, rows.m_To}}) {
        if (!piece.IsEmpty())
            appendStroke(points, piece, readRows(piece));
    }
}

void LineReduction::appendStroke(std::vector<LinePoint>& points, const RowSpan& rows,
                                 const Contents& contents) const
{
    const ColumnExtremes& found = contents.m_Extremes;
    const int jump = contents.m_JumpRow;
    appendRows(points, {rows.m_From, rows.m_From + 1});
    std::array<int, 4> chosen{found.m_LowRow, found.m_HighRow, jump, jump + 1};
    const auto end = chosen.begin() + (jump < 0 ? 2 : 4);
    std::sort(chosen.begin(), end);
    std::for_each(chosen.begin(), end, [&](int row) {
        if (row >= 0)
            appendLater(points, row, value(row));
    });
    const double last = value(rows.m_To - 1);
    if (std::isfinite(last))
        appendLater(points, rows.m_To - 1, last);
    else
        appendBreak(points);
}

bool LineReduction::canSummarize(const RowSpan& rows, double columnRows) const
{
    constexpr int block = ColumnSummary::BlockRows;
    return rows.m_From % block == 0 && rows.m_To % block == 0 && columnRows > mostFlatRows &&
           m_Data.GetRowCount() > longRecording;
}

LineReduction::Contents LineReduction::readColumn(const RowSpan& rows, double columnRows) const
{
    if (!canSummarize(rows, columnRows))
        return readRows(rows);
    Contents contents;
    contents.m_Extremes = m_Data.GetColumnSummary(m_Attribute).GetExtremes(rows.m_From, rows.m_To);
    return contents;
}

LineReduction::Contents LineReduction::readRows(const RowSpan& rows) const
{
    // A jump that is most of the column would lean, were it drawn between the extremes.
    constexpr double most = 0.8;
    Contents contents;
    contents.m_Changes = 0;
    double widest = 0;
    double before = std::numeric_limits<double>::quiet_NaN();
    for (int row = rows.m_From; row < rows.m_To; ++row) {
        const double rowValue = value(row);
        contents.m_Extremes.Add(row, rowValue);
        if (std::abs(rowValue - before) > widest) {
            widest = std::abs(rowValue - before);
            contents.m_JumpRow = row - 1;
        }
        contents.m_Changes += row > rows.m_From && rowValue != before;
        before = rowValue;
    }
    const ColumnExtremes& found = contents.m_Extremes;
    if (found.m_HasGap || widest < most * (found.m_High - found.m_Low))
        contents.m_JumpRow = -1;
    return contents;
}
