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
// How often the rows between the first gap of a column and the last one are split again.
constexpr int mostSplits = 4;
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
    return m_Data.GetValue(row, m_Attribute);
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
        appendPieces(points, rows, mostSplits);
    else
        appendStroke(points, rows, contents);
}

// Both the first and the last row are finite unless there are splits left.
void LineReduction::appendPieces(std::vector<LinePoint>& points, const RowSpan& rows,
                                 int splits) const
{
    const int head = findChange(rows.m_From, rows.m_To, true);
    if (head == rows.m_To || splits == 0) {
        appendStroke(points, rows, readRows(rows));
        return;
    }
    const int tail = findChange(rows.m_To - 1, head, true) + 1;
    const int first = findChange(head, tail, false);
    if (rows.m_From < head)
        appendStroke(points, {rows.m_From, head}, readRows({rows.m_From, head}));
    appendBreak(points);
    if (first < tail) {
        appendPieces(points, {first, findChange(tail - 1, first, false) + 1}, splits - 1);
        appendBreak(points);
    }
    if (tail < rows.m_To)
        appendStroke(points, {tail, rows.m_To}, readRows({tail, rows.m_To}));
}

// On the way from one row to another the first that is not finite, or not missing, like those
// before it; the other row, which is not looked at, when there is none.
int LineReduction::findChange(int from, int to, bool isFinite) const
{
    const int step = from <= to ? 1 : -1;
    while (from != to && std::isfinite(value(from)) == isFinite)
        from += step;
    return from;
}

void LineReduction::appendStroke(std::vector<LinePoint>& points, const RowSpan& rows,
                                 const Contents& contents) const
{
    const ColumnExtremes& found = contents.m_Extremes;
    const int jump = contents.m_JumpRow;
    points.push_back({rows.m_From, value(rows.m_From)});
    std::array<int, 4> chosen{found.m_LowRow, found.m_HighRow, jump, jump + 1};
    const auto end = chosen.begin() + (jump < 0 ? 2 : 4);
    std::sort(chosen.begin(), end);
    std::for_each(chosen.begin(), end, [&](int row) { appendLater(points, row, value(row)); });
    appendLater(points, rows.m_To - 1, value(rows.m_To - 1));
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
