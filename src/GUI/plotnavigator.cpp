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

namespace
{

// Room in the scroll area beside and below the graph.
constexpr int WIDTH_MARGIN = 5;
constexpr int HEIGHT_MARGIN = 20;

} // namespace

PlotNavigator::PlotNavigator(QScrollArea* scrollArea, CuttableLinePlotWidget* plot,
                             OverviewTimelineWidget* overview, ZoomWidget* zoom, QObject* parent)
    : QObject(parent), m_ScrollArea(scrollArea), m_Plot(plot), m_Overview(overview), m_Zoom(zoom)
{
    m_ScrollArea->installEventFilter(this);
    m_Overview->installEventFilter(this);
}

void PlotNavigator::ResizePlot()
{
    m_Plot->ResizePlots(std::max(m_Zoom->value() * (m_ScrollArea->width() - WIDTH_MARGIN), 1),
                        std::max(m_ScrollArea->height() - HEIGHT_MARGIN, 1));
    UpdateVisiblePart();
}

void PlotNavigator::UpdateVisiblePart()
{
    const QScrollBar* bar = m_ScrollArea->horizontalScrollBar();
    // A hidden bar has no width of its own yet.
    const int visible = bar->isVisible() ? bar->width() : m_ScrollArea->viewport()->width();
    const int from = bar->value();
    const int to = from + visible;
    const float ratio = float(m_Overview->width()) / float(std::max(m_Plot->width(), 1));
    m_Overview->SetSelection(int(float(from) * ratio), int(float(to) * ratio));
    m_Plot->SetVisibleRange(from, to);
}

void PlotNavigator::UpdateScrollRange(int minimum, int maximum)
{
    if (minimum == 0 && maximum == 0) {
        m_Overview->SetSelection(-1, -1);
        m_Plot->SetVisibleRange(-1, -1);
    } else {
        UpdateVisiblePart();
    }
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
    m_Plot->ResizePlots(plotWidth, std::max(m_ScrollArea->height() - HEIGHT_MARGIN, 1));
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

void PlotNavigator::followScrollArea()
{
    // The bar knows its new range only after the scroll area has seen the event, too.
    if (m_PlaceToKeep < 0) {
        m_PlaceToKeep =
            double(m_ScrollArea->horizontalScrollBar()->value()) / std::max(m_Plot->width(), 1);
        QMetaObject::invokeMethod(this, &PlotNavigator::restorePlace, Qt::QueuedConnection);
    }
    ResizePlot();
}

void PlotNavigator::restorePlace()
{
    m_ScrollArea->horizontalScrollBar()->setValue(qRound(m_PlaceToKeep * m_Plot->width()));
    m_PlaceToKeep = -1;
}

bool PlotNavigator::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        watched == m_ScrollArea ? followScrollArea() : UpdateVisiblePart();
    return QObject::eventFilter(watched, event);
}
