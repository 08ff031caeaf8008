#include "selectionmultiplelineplotwidget.h"

#include "oldmultiplelineplot.h"

SelectionMultipleLinePlotWidget::SelectionMultipleLinePlotWidget(QWidget* parent)
    : OldMultipleLinePlotWidget(true, parent)
{
}

void SelectionMultipleLinePlotWidget::rejectLines(const std::vector<int>& lines)
{
    for (const int line : lines) {
        const RowRange rows = plot().GetRows(line);
        if (rows.IsSet())
            m_Removed.append(rows);
    }
    OldMultipleLinePlotWidget::rejectLines(lines);
    emit ItemsRemoved();
}
