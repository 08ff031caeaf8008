#include "selectionplotwidget.h"

#include "dataset.h"
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

SelectionRange SelectionPlotWidget::toPixels(int from, int to) const
{
    const int first = std::max(m_From, 0);
    const double start = m_TimeAxis->GetStart().x();
    SelectionRange range;
    range.m_Start = start + double(m_TimeAxis->ToPixel(from - first));
    range.m_End = start + double(m_TimeAxis->ToPixel(to - first));
    return range;
}

void SelectionPlotWidget::SetSelection(int from, int to)
{
    m_Selection = toPixels(from, to);
    update();
}

void SelectionPlotWidget::ClearSelection()
{
    m_Selection.Clear();
    update();
}

void SelectionPlotWidget::SetSecondSelection(int from, int to)
{
    m_SecondSelection = toPixels(from, to);
    update();
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
    constexpr double opacity = 0.4;
    paintPlot(painter, opacity);
    painter.save();
    painter.setOpacity(opacity);
    m_Selection.Paint(painter, height());
    m_SecondSelection.Paint(painter, height());
    painter.restore();
}

void SelectionPlotWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_Selection.Begin(event->pos().x(), m_TimeAxis->GetStart().x());
    update();
}

void SelectionPlotWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return;
    m_Selection.SetEnd(event->pos().x());
    update();
}
