#include "timeaxis.h"

#include "pixelmath.h"
#include "plotlook.h"
#include "rowsearch.h"
#include <QPainter>
#include <algorithm>
#include <limits>

TimeAxis::~TimeAxis() = default;

float TimeAxis::ToPixel(int index) const
{
    return float(linearPixel(index));
}

int TimeAxis::ToIndex(float x) const
{
    return TruncateToInt(intervals() * (double(x) - m_Start.x()) / width());
}

void TimeAxis::Paint(QPainter& painter) const
{
    painter.setPen(m_Color);
    // Painters cannot take a line that is hundreds of screens long: only what shows is drawn.
    const QRectF visible = VisibleRect(painter);
    const double left = std::max(m_Start.x(), visible.left() - 2);
    const double right = std::min(m_End.x(), visible.right() + 2);
    if (left <= right)
        painter.drawLine(QPointF(left, m_Start.y()), QPointF(right, m_End.y()));
    if (m_Title.isEmpty())
        return;
    painter.setFont(PlotFont());
    const int titleWidth = painter.fontMetrics().horizontalAdvance(m_Title);
    const double middle = (m_Start.x() + m_End.x()) / 2;
    painter.drawText(QPointF(middle - titleWidth / 2.0, m_Start.y() + 10), m_Title);
}

double TimeAxis::ToExactPixel(int index) const
{
    // ToPixel may be overridden. Where it agrees with the linear axis, that knows the digits which
    // single precision has lost.
    const double linear = linearPixel(index);
    const float pixel = ToPixel(index);
    return pixel == float(linear) ? linear : double(pixel);
}

int TimeAxis::OrderedEnd(int) const
{
    return std::numeric_limits<int>::max();
}

RowSpan TimeAxis::RowsUnder(double left, double right, const RowSpan& rows) const
{
    constexpr int neighbours = 2;
    const auto sideOf = [&](int row) { return ToX(row) < left ? -1 : ToX(row) > right ? 1 : 0; };
    RowSpan found{rows.m_To, rows.m_From};
    const auto include = [&](int from, int to) {
        found = {std::min(found.m_From, from), std::max(found.m_To, to)};
    };
    for (int from = rows.m_From, to = from; from < rows.m_To; from = to) {
        to = std::min(rows.m_To, OrderedEnd(from));
        const int behind = ToX(from) <= ToX(to - 1) ? 1 : -1;
        const int first = EndOfHolding({from, to}, [&](int row) { return sideOf(row) == -behind; });
        const int end = EndOfHolding({first, to}, [&](int row) { return sideOf(row) != behind; });
        if (first < end || (from < first && end < to))
            include(first, end);
        if (from > rows.m_From && sideOf(from - 1) * sideOf(from) < 0)
            include(from, from);
    }
    if (found.m_To < found.m_From)
        return {rows.m_From, rows.m_From};
    return {std::max(found.m_From - neighbours, rows.m_From),
            std::min(found.m_To + neighbours, rows.m_To)};
}
