#include "selectionplotwidget.h"

#include "dataset.h"
#include "plotlook.h"
#include "timeaxis.h"
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

SelectionPlotWidget::SelectionPlotWidget(int attribute, QWidget* parent)
    : LinePlotWidget(attribute, parent)
{
}

bool SelectionPlotWidget::GetSelection(int& from, int& to) const
{
    const double start = m_Selection.GetSelectionStart();
    const double end = m_Selection.GetSelectionEnd();
    if (!m_DataSet || !m_Selection.IsValid() || end - start < 1)
        return false;
    const int first = std::max(m_From, 0);
    from = std::max(m_TimeAxis->ToIndex(float(start)) + first, 0);
    to = std::min(m_TimeAxis->ToIndex(float(end)) + first, m_DataSet->GetRowCount() - 1);
    return true;
}

void SelectionPlotWidget::select(SelectionRange& range, int from, int to)
{
    const int first = std::max(m_From, 0);
    const double start = m_TimeAxis->GetStart().x();
    range.Clear();
    range.m_Start = start + double(m_TimeAxis->ToPixel(from - first));
    range.m_End = start + double(m_TimeAxis->ToPixel(to - first));
    update();
}

void SelectionPlotWidget::SetSelection(int from, int to)
{
    select(m_Selection, from, to);
}

void SelectionPlotWidget::ClearSelection()
{
    m_Selection.Clear();
    update();
}

void SelectionPlotWidget::SetSecondSelection(int from, int to)
{
    select(m_SecondSelection, from, to);
}

void SelectionPlotWidget::ClearSecondSelection()
{
    m_SecondSelection.Clear();
    update();
}

void SelectionPlotWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintWithSelections(painter);
}

void SelectionPlotWidget::paintWithSelections(QPainter& painter)
{
    paintPlot(painter, MarkOpacity);
    painter.save();
    painter.setOpacity(MarkOpacity);
    m_Selection.Paint(painter, height());
    m_SecondSelection.Paint(painter, height());
    painter.restore();
}

void SelectionPlotWidget::mousePressEvent(QMouseEvent* event)
{
    if (m_Selection.Press(*event, m_TimeAxis->GetStart().x()))
        update();
}

void SelectionPlotWidget::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) && m_Selection.Move(*event))
        update();
}
