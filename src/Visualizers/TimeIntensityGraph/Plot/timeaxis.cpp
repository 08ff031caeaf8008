#include "timeaxis.h"

#include "pixelmath.h"
#include "plotfont.h"
#include <QPainter>
#include <algorithm>
#include <typeinfo>

TimeAxis::~TimeAxis() = default;

float TimeAxis::ToPixel(int index) const
{
    return float(ToExactPixel(index));
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

bool TimeAxis::IsUniform() const
{
    return typeid(*this) == typeid(TimeAxis);
}

double TimeAxis::ToExactPixel(double index) const
{
    return width() * index / intervals();
}
