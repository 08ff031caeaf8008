#include "graphview.h"

#include "cuttablelineplotwidget.h"
#include "mainwindow.h"
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
