#include "verticalaxis.h"

#include "pixelmath.h"
#include "plotlook.h"
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
constexpr int tickCount = 5;

float toLimit(double value)
{
    constexpr double largest = std::numeric_limits<float>::max();
    return std::isnan(value) ? 0.0F : float(qBound(-largest, value, largest));
}
} // namespace

float VerticalAxis::ToValue(float y) const
{
    const double height = m_Bottom.y() - m_Top.y();
    return float(double(span()) * (m_Bottom.y() - double(y)) / height + double(m_Min));
}

void VerticalAxis::SetMaximum(double maximum)
{
    m_Max = toLimit(maximum);
}

void VerticalAxis::SetMinimum(double minimum)
{
    m_Min = toLimit(minimum);
}

void VerticalAxis::Paint(QPainter& painter) const
{
    if (!m_Visible)
        return;
    PaintAxis(painter, 0);
    PaintTitle(painter);
}

void VerticalAxis::PaintAxis(QPainter& painter, int xOffset) const
{
    painter.setPen(m_Color);
    painter.setFont(PlotFont());
    const double x = m_Bottom.x() + xOffset;
    painter.drawLine(QPointF(x, m_Bottom.y()), QPointF(x, m_Top.y()));
    if (m_Max < m_Min)
        return;
    const float step = (m_Max - m_Min) / tickCount;
    float value = m_Min;
    // A step that no longer changes the value would never arrive.
    while (value < m_Max && value + step > value && std::isfinite(step)) {
        paintTick(painter, x, value);
        value = std::min(m_Max, value + step);
    }
    paintTick(painter, x, m_Max);
}

void VerticalAxis::paintTick(QPainter& painter, double x, float value) const
{
    const double y = SafeCoordinate(m_Bottom.y() - double(ToPixel(value)));
    painter.drawLine(QPointF(x - 5, y), QPointF(x, y));
    const double rounded = std::floor(double(value) * 100 + 0.5) / 100;
    const QString text = QString::number(rounded, 'g', 6);
    const int textWidth = painter.fontMetrics().horizontalAdvance(text);
    painter.drawText(QPointF(x - textWidth - 8, y + 3 + m_LabelOffset), text);
}

void VerticalAxis::PaintTitle(QPainter& painter) const
{
    painter.save();
    painter.setFont(PlotFont());
    const int textWidth = painter.fontMetrics().horizontalAdvance(m_Title);
    painter.setPen(m_Color);
    painter.translate(m_Bottom.x() - 30, (m_Top.y() + m_Bottom.y()) / 2 + textWidth / 2.0);
    painter.rotate(270);
    painter.drawText(QPointF(0, 0), m_Title);
    painter.restore();
}
