#include "graphview.h"

#include "cuttablelineplotwidget.h"
#include "mainwindow.h"
#include "timeaxis.h"
#include <QScrollArea>
#include <QScrollBar>

CuttableLinePlotWidget* Graph(const MainWindow& window)
{
    return window.findChild<CuttableLinePlotWidget*>();
}

QScrollBar* GraphScrollBar(const MainWindow& window)
{
    return window.findChild<QScrollArea*>()->horizontalScrollBar();
}

QPoint VisiblePoint(const MainWindow& window, int x)
{
    return {GraphScrollBar(window)->value() + x, Graph(window)->height() / 3};
}

QPoint RowPoint(const MainWindow& window, int row)
{
    const TimeAxis* axis = Graph(window)->GetTimeAxis();
    // Half a pixel further in, where no rounding reaches the neighbour.
    return {int(axis->GetStart().x() + axis->ToExactPixel(row) + 0.5), Graph(window)->height() / 3};
}
