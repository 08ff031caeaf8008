#pragma once

#include <QPoint>

class CuttableLinePlotWidget;
class MainWindow;
class QScrollBar;

/// The main window's graph as the tour sees it.
CuttableLinePlotWidget* Graph(const MainWindow& window);
QScrollBar* GraphScrollBar(const MainWindow& window);

/// A point of the graph as it shows: x from the left edge of what is visible.
QPoint VisiblePoint(const MainWindow& window, int x);
/// The point of the graph where a row is; it may be out of view.
QPoint RowPoint(const MainWindow& window, int row);
