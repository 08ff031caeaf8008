#pragma once

#include <QToolBar>

class CuttableLinePlotWidget;
class ZoomWidget;

/// The tool bar "Graph Options": cuts, merges, zoom and the value axes beside the pointer.
class GraphToolBar : public QToolBar
{
    Q_OBJECT
public:
    /// Takes ownership of the zoom widget.
    GraphToolBar(CuttableLinePlotWidget* plot, ZoomWidget* zoom, QWidget* parent = nullptr);

signals:
    void CutClicked();
    void MergeClicked();
};
