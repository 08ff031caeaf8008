#include "windowlineplot.h"

#include "plotlook.h"
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
    LinePlotWidget::paintEvent(event);
    QPainter painter(this);
    painter.setOpacity(MarkOpacity);
    for (const RowSpan& sample : m_Samples)
        paintRows(painter, sample, Qt::blue);
    RowSpan window;
    if (GetSelection(window.m_From, window.m_To))
        paintRows(painter, window, Qt::yellow);
}

void WindowLinePlot::paintRows(QPainter& painter, const RowSpan& rows, const QColor& color) const
{
    const double start = m_TimeAxis->GetStart().x();
    const double left = start + double(m_TimeAxis->ToPixel(rows.m_From));
    const double right = start + double(m_TimeAxis->ToPixel(rows.m_To));
    painter.fillRect(QRectF(left, 0, right - left, height() - 1), color);
}
