#include "multiselectionplotareawidget.h"

#include "plotlook.h"
#include "timeaxis.h"
#include <QMouseEvent>
#include <QPainter>

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
    return toRows(m_Drag, from, to);
}

void MultiSelectionPlotAreaWidget::ClearSelection()
{
    m_Drag.Clear();
    update();
}

void MultiSelectionPlotAreaWidget::SetHeadCalibration(const std::optional<RowSpan>& first,
                                                      const std::optional<RowSpan>& second)
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
    if (event->x() > axis->GetStart().x())
        m_Drag.Press(*event, axis->GetStart().x(), axis->GetEnd().x());
}

void MultiSelectionPlotAreaWidget::mouseMoveEvent(QMouseEvent* event)
{
    const TimeAxis* axis = GetTimeAxis();
    if ((event->buttons() & Qt::LeftButton) && axis &&
        m_Drag.Move(*event, axis->GetStart().x(), axis->GetEnd().x()))
        update();
}

void MultiSelectionPlotAreaWidget::paintEvent(QPaintEvent* event)
{
    PlotAreaWidget::paintEvent(event);
    QPainter painter(this);
    painter.setOpacity(MarkOpacity);
    for (const RowSpan& range : m_Ranges)
        paintRows(painter, range, Qt::blue, true);
    if (m_FirstCalibration)
        paintRows(painter, *m_FirstCalibration, Qt::blue, false);
    if (m_SecondCalibration)
        paintRows(painter, *m_SecondCalibration, Qt::green, false);
    m_Drag.PaintBand(painter, height());
}
