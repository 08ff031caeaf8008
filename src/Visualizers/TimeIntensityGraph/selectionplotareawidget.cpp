#include "selectionplotareawidget.h"

#include <QPainter>

void SelectionPlotAreaWidget::SetSelection(int from, int to)
{
    m_Selection = {from, to};
    update();
}

void SelectionPlotAreaWidget::ClearSelection()
{
    m_Selection = {};
    update();
}

bool SelectionPlotAreaWidget::GetSelection(int& from, int& to) const
{
    from = m_Selection.m_From;
    to = m_Selection.m_To;
    return m_Selection.IsSet();
}

void SelectionPlotAreaWidget::paintEvent(QPaintEvent* event)
{
    constexpr double opacity = 0.4;
    PlotAreaWidget::paintEvent(event);
    QPainter painter(this);
    painter.setOpacity(opacity);
    paintRowRange(painter, m_Selection, Qt::yellow, false);
}
