#pragma once

#include <QObject>

class CuttableLinePlotWidget;
class OverviewTimelineWidget;
class QScrollArea;
class ZoomWidget;

/// Zooms and scrolls the main graph and keeps the overview's marker on what shows.
class PlotNavigator : public QObject
{
    Q_OBJECT
public:
    /// The graph is the scroll area's widget.
    PlotNavigator(QScrollArea* scrollArea, CuttableLinePlotWidget* plot,
                  OverviewTimelineWidget* overview, ZoomWidget* zoom, QObject* parent = nullptr);

    /// Gives the graph the size that the zoom asks for.
    void ResizePlot();
    /// Tells graph and overview what part shows.
    void UpdateVisiblePart();
    /// The scroll bar has a new range; (0, 0) means that everything shows.
    void UpdateScrollRange(int minimum, int maximum);
    /// Scrolls to a range of rows.
    void ShowRange(int from, int to);
    /// Zooms until a range of rows about fills the view. Does nothing for an empty range.
    void ZoomOnRegion(int from, int to, int rowCount);

protected:
    /// Graph and marker follow also when the window is resized.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    double pixelOf(int row) const;
    // Resizes the graph and keeps its left end in place.
    void followScrollArea();
    void restorePlace();

    QScrollArea* m_ScrollArea;
    CuttableLinePlotWidget* m_Plot;
    OverviewTimelineWidget* m_Overview;
    ZoomWidget* m_Zoom;
    // The graph's left end as a part of its width while the window is resized, else negative.
    double m_PlaceToKeep = -1;
};
