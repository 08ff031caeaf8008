#include "selectionplotareawidget.h"

#include "plotlook.h"
#include <QPainter>

void SelectionPlotAreaWidget::SetSelection(int from, int to)
{
    m_Selection = RowSpan{from, to};
    update();
}

void SelectionPlotAreaWidget::ClearSelection()
{
    m_Selection.reset();
    update();
}

bool SelectionPlotAreaWidget::GetSelection(int& from, int& to) const
{
    if (!m_Selection)
        return false;
    from = m_Selection->m_From;
    to = m_Selection->m_To;
    return true;
}

void SelectionPlotAreaWidget::paintEvent(QPaintEvent* event)
{
    PlotAreaWidget::paintEvent(event);
    if (!m_Selection)
        return;
    QPainter painter(this);
    painter.setOpacity(MarkOpacity);
    paintRows(painter, *m_Selection, Qt::yellow, false);
}
