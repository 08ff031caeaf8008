#pragma once

#include "zoomedview.h"

class CuttableLinePlotWidget;
class OverviewTimelineWidget;

/// Zooms and scrolls the main graph and keeps the overview's marker on what shows.
class PlotNavigator : public QObject
{
    Q_OBJECT
public:
    /// The graph is the scroll area's widget.
    PlotNavigator(QScrollArea* scrollArea, CuttableLinePlotWidget* plot,
                  OverviewTimelineWidget* overview, ZoomWidget* zoom, QObject* parent = nullptr);

    /// Gives the graph the size that the zoom asks for.
    void ResizePlot() { m_View.Resize(); }
    /// Tells graph and overview what part shows.
    void UpdateVisiblePart() { m_View.UpdateVisiblePart(); }
    /// The scroll bar has a new range; (0, 0) means that everything shows.
    void UpdateScrollRange(int minimum, int maximum) { m_View.UpdateScrollRange(minimum, maximum); }
    /// Scrolls to a range of rows.
    void ShowRange(int from, int to);
    /// Zooms until a range of rows about fills the view. Does nothing for an empty range.
    void ZoomOnRegion(int from, int to, int rowCount);

protected:
    /// The marker follows also when the overview is resized.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    double pixelOf(int row) const;
    void showVisiblePart(int from, int to);

    QScrollArea* m_ScrollArea;
    CuttableLinePlotWidget* m_Plot;
    OverviewTimelineWidget* m_Overview;
    ZoomWidget* m_Zoom;
    ZoomedView m_View;
};
