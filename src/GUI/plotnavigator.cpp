#include "plotnavigator.h"

#include "cuttablelineplotwidget.h"
#include "overviewtimelinewidget.h"
#include "timeaxis.h"
#include "zoomwidget.h"
#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

PlotNavigator::PlotNavigator(QScrollArea* scrollArea, CuttableLinePlotWidget* plot,
                             OverviewTimelineWidget* overview, ZoomWidget* zoom, QObject* parent)
    : QObject(parent), m_ScrollArea(scrollArea), m_Plot(plot), m_Overview(overview), m_Zoom(zoom),
      m_View(scrollArea, zoom)
{
    m_Overview->installEventFilter(this);
    connect(&m_View, &ZoomedView::SizeAsked, m_Plot,
            [plot](const QSize& size) { plot->ResizePlots(size.width(), size.height()); });
    connect(&m_View, &ZoomedView::VisiblePartChanged, this, &PlotNavigator::showVisiblePart);
}

void PlotNavigator::showVisiblePart(int from, int to)
{
    const bool isKnown = from != -1 || to != -1;
    const float ratio = float(m_Overview->width()) / float(std::max(m_Plot->width(), 1));
    m_Overview->SetSelection(isKnown ? int(float(from) * ratio) : -1,
                             isKnown ? int(float(to) * ratio) : -1);
    m_Plot->SetVisibleRange(from, to);
}

double PlotNavigator::pixelOf(int row) const
{
    return double(m_Plot->GetTimeAxis()->ToPixel(row));
}

void PlotNavigator::ShowRange(int from, int to)
{
    const TimeAxis* axis = m_Plot->GetTimeAxis();
    if (!axis)
        return;
    const double center = (pixelOf(from) + pixelOf(to)) * 0.5;
    m_ScrollArea->horizontalScrollBar()->setValue(int(center - axis->GetStart().x()));
}

void PlotNavigator::ZoomOnRegion(int from, int to, int rowCount)
{
    const int width = m_ScrollArea->width();
    if (!m_Plot->GetTimeAxis() || to <= from || width <= 0)
        return;
    const double pixelsPerRow = double(width) / (to - from);
    const int plotWidth = int(std::clamp(rowCount * pixelsPerRow, 1.0, double(QWIDGETSIZE_MAX)));
    m_Plot->ResizePlots(plotWidth, m_View.GetFittingHeight());
    {
        // The slider only shows about where this zoom lies; it must not round the width.
        const QSignalBlocker blocker(m_Zoom);
        m_Zoom->setValue(plotWidth / width);
    }
    UpdateVisiblePart();
    QScrollBar* bar = m_ScrollArea->horizontalScrollBar();
    const float scale = float(bar->maximum()) / float(plotWidth);
    const double center = (int(pixelOf(to)) + int(pixelOf(from))) * 0.5;
    bar->setValue(int(center * double(scale)));
}

bool PlotNavigator::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_Overview && event->type() == QEvent::Resize)
        UpdateVisiblePart();
    return QObject::eventFilter(watched, event);
}
