#pragma once

#include "lineplot.h"
#include "liverecording.h"
#include <QWidget>

/// A widget that is one plot.
class LinePlotWidget : public QWidget, public LinePlot
{
    Q_OBJECT
public:
    explicit LinePlotWidget(int attribute, QWidget* parent = nullptr);

    /// Shows a recording whose attributes may come and go.
    void SetRecording(LiveRecording* recording);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    /// Fills white and paints the plot with its grid at that opacity.
    void paintPlot(QPainter& painter, double opacity);
};
