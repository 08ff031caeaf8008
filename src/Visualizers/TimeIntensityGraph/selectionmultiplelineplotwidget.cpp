#include "selectionmultiplelineplotwidget.h"

#include "oldmultiplelineplot.h"

SelectionMultipleLinePlotWidget::SelectionMultipleLinePlotWidget(QWidget* parent)
    : OldMultipleLinePlotWidget(true, parent)
{
}

void SelectionMultipleLinePlotWidget::rejectLines(const std::vector<int>& lines)
{
    for (const int line : lines) {
        if (const auto rows = plot().GetRows(line))
            m_Removed.append(*rows);
    }
    OldMultipleLinePlotWidget::rejectLines(lines);
    emit ItemsRemoved();
}
