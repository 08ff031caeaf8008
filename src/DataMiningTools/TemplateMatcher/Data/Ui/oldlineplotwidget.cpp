#include "oldlineplotwidget.h"

OldLinePlotWidget::OldLinePlotWidget(const std::vector<double>& values, const QString& name,
                                     QWidget* parent)
    : LinePlotWidget(-1, parent), m_Values(values)
{
    setWindowTitle(name);
    setMinimumSize(200, 120);
    resize(600, 300);
    // Ends the time axis inside the window.
    SetRightMargin(PlotLeftMargin);
    SetData(m_Values.data(), int(m_Values.size()), name);
}
