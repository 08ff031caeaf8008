#include "oldmultiplelineplotwidget.h"

#include "oldmultiplelineplot.h"
#include <QColor>

OldMultipleLinePlotWidget::OldMultipleLinePlotWidget(QWidget* parent)
    : OldMultipleLinePlotWidget(false, parent)
{
}

OldMultipleLinePlotWidget::OldMultipleLinePlotWidget(bool rejecting, QWidget* parent)
    : OverlaidLinesWidget(std::make_unique<OldMultipleLinePlot>(), rejecting, parent)
{
}

OldMultipleLinePlot& OldMultipleLinePlotWidget::plot() const
{
    return static_cast<OldMultipleLinePlot&>(lines());
}

void OldMultipleLinePlotWidget::AddLine(DataSet* dataSet, int attribute, int from, int to,
                                        const QColor& color)
{
    plot().AddLine(dataSet, attribute, from, to, color);
}

void OldMultipleLinePlotWidget::AddLine(double* values, int size, const QColor& color)
{
    plot().AddLine(values, size, color);
}
