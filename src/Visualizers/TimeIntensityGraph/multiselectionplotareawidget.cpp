#include "multiselectionplotareawidget.h"

#include "pixelmath.h"
#include "timeaxis.h"
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

void MultiSelectionPlotAreaWidget::AddRange(int from, int to)
{
    m_Ranges.append({from, to});
    update();
}

void MultiSelectionPlotAreaWidget::ClearRanges()
{
    m_Ranges.clear();
    update();
}

bool MultiSelectionPlotAreaWidget::GetSelection(int& from, int& to) const
{
    const TimeAxis* axis = GetTimeAxis();
    if (!axis || m_DragStart == -1 || m_DragEnd == -1)
        return false;
    const int origin = std::max(m_From, 0);
    from = origin + axis->ToIndex(float(std::min(m_DragStart, m_DragEnd)));
    to = origin + axis->ToIndex(float(std::max(m_DragStart, m_DragEnd)));
    return true;
}

void MultiSelectionPlotAreaWidget::ClearSelection()
{
    m_DragStart = -1;
    m_DragEnd = -1;
    update();
}

void MultiSelectionPlotAreaWidget::SetHeadCalibration(const RowRange& first, const RowRange& second)
{
    m_FirstCalibration = first;
    m_SecondCalibration = second;
    update();
}

void MultiSelectionPlotAreaWidget::mousePressEvent(QMouseEvent* event)
{
    const TimeAxis* axis = GetTimeAxis();
    if (event->button() != Qt::LeftButton || !axis)
        return;
    ClearSelection();
    if (event->pos().x() > axis->GetStart().x())
        m_DragStart = std::min(event->pos().x(), TruncateToInt(axis->GetEnd().x()));
}

void MultiSelectionPlotAreaWidget::mouseMoveEvent(QMouseEvent* event)
{
    const TimeAxis* axis = GetTimeAxis();
    if (!(event->buttons() & Qt::LeftButton) || !axis || m_DragStart == -1)
        return;
    const int left = TruncateToInt(axis->GetStart().x());
    const int right = TruncateToInt(axis->GetEnd().x());
    m_DragEnd = std::max(left, std::min(event->pos().x(), right));
    update();
}

void MultiSelectionPlotAreaWidget::paintEvent(QPaintEvent* event)
{
    constexpr double opacity = 0.4;
    PlotAreaWidget::paintEvent(event);
    QPainter painter(this);
    painter.setOpacity(opacity);
    for (const RowRange& range : m_Ranges)
        paintRowRange(painter, range, Qt::blue, true);
    paintRowRange(painter, m_FirstCalibration, Qt::blue, false);
    paintRowRange(painter, m_SecondCalibration, Qt::green, false);
    if (m_DragStart == -1 || m_DragEnd == -1)
        return;
    const int left = std::min(m_DragStart, m_DragEnd);
    painter.fillRect(left, 0, std::abs(m_DragEnd - m_DragStart), height() - 1, Qt::yellow);
}
