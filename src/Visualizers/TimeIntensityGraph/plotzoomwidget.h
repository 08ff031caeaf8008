#pragma once

#include "zoomedview.h"
#include <QWidget>

class PlotAreaLabelWidget;

/// A plot area with labels that can be zoomed and scrolled.
class PlotZoomWidget : public QWidget
{
    Q_OBJECT
public:
    explicit PlotZoomWidget(QWidget* parent = nullptr);

    PlotAreaLabelWidget* GetPlotArea() const { return m_PlotArea; }

public slots:
    /// Gives the plots the size that the zoom asks for.
    void resizeLinePlotWidget() { m_View.Resize(); }
    void sliderRange(int minimum, int maximum) { m_View.UpdateScrollRange(minimum, maximum); }
    /// Tells the plots what part of them shows.
    void updateSelection() { m_View.UpdateVisiblePart(); }

private:
    ZoomWidget* m_ZoomWidget;
    QScrollArea* m_ScrollArea;
    PlotAreaLabelWidget* m_PlotArea;
    ZoomedView m_View;
};
