#include "windowlineplot.h"

#include "timeaxis.h"
#include <QMouseEvent>
#include <QPainter>

WindowLinePlot::WindowLinePlot(int attribute, QWidget* parent) : LinePlotWidget(attribute, parent)
{
    setMouseTracking(true);
}

void WindowLinePlot::SetWindowSize(int rows)
{
    m_WindowSize = rows;
    update();
}

bool WindowLinePlot::GetSelection(int& from, int& to) const
{
    if (m_MouseX < 0)
        return false;
    from = m_TimeAxis->ToIndex(float(m_MouseX));
    to = from + m_WindowSize;
    return true;
}

void WindowLinePlot::AddSample(int from, int to)
{
    m_Samples.append({from, to});
    update();
}

void WindowLinePlot::ClearSamples()
{
    m_Samples.clear();
    update();
}

void WindowLinePlot::mouseMoveEvent(QMouseEvent* event)
{
    m_MouseX = event->pos().x();
    update();
}

void WindowLinePlot::paintEvent(QPaintEvent* event)
{
    constexpr double opacity = 0.4;
    LinePlotWidget::paintEvent(event);
    QPainter painter(this);
    painter.setOpacity(opacity);
    for (const RowRange& sample : m_Samples)
        paintRows(painter, sample.m_From, sample.m_To, Qt::blue);
    int from = 0;
    int to = 0;
    if (GetSelection(from, to))
        paintRows(painter, from, to, Qt::yellow);
}

void WindowLinePlot::paintRows(QPainter& painter, int from, int to, const QColor& color) const
{
    const double start = m_TimeAxis->GetStart().x();
    const double left = start + double(m_TimeAxis->ToPixel(from));
    const double right = start + double(m_TimeAxis->ToPixel(to));
    painter.fillRect(QRectF(left, 0, right - left, height() - 1), color);
}
