#include "thresholdlinegraphwidget.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>

ThresholdLineGraphWidget::ThresholdLineGraphWidget(QWidget* parent) : ResultMapWidget(parent) {}

void ThresholdLineGraphWidget::SetZoomRange(int from, int to)
{
    m_From = std::max(from, 0);
    m_To = to;
    markStale();
}

StepScale ThresholdLineGraphWidget::makeScale() const
{
    const int to = std::min(m_To, results().m_Steps);
    if (m_From >= to)
        return StepScale::OverRange(0, results().m_Steps, width());
    return StepScale::OverRange(m_From, to, width());
}

void ThresholdLineGraphWidget::reduceResults(const StepScale& scale)
{
    m_PositionValues = computePositionValueList(results(), scale);
}

void ThresholdLineGraphWidget::reduceMatches(const CenterPoints& matches, const StepScale& scale)
{
    m_Marks = computeMatchPixels(matches, scale);
}

double ThresholdLineGraphWidget::toY(float confidence) const
{
    return (height() - 1) * (1 - double(qBound(0.0F, confidence, 1.0F)));
}

void ThresholdLineGraphWidget::paintMap(QPainter& painter)
{
    for (const int pixel : m_Marks)
        painter.fillRect(pixel, 0, 1, height(), Qt::lightGray);
    QPolygonF line;
    for (const PositionValue& entry : m_PositionValues)
        line.append(QPointF(double(entry.m_X), toY(entry.m_Value)));
    painter.setPen(Qt::darkBlue);
    painter.drawPolyline(line);
    painter.setPen(Qt::red);
    painter.drawLine(QPointF(0, toY(threshold())), QPointF(width(), toY(threshold())));
}
