#pragma once

#include "lineplot.h"
#include <QWidget>

/// A widget that is one plot.
class LinePlotWidget : public QWidget, public LinePlot
{
    Q_OBJECT
public:
    explicit LinePlotWidget(int attribute, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    /// Fills white and paints the plot with its grid at that opacity.
    void paintPlot(QPainter& painter, double opacity);
};
