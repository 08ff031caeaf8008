#include "zoomedview.h"

#include "zoomwidget.h"
#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

namespace
{

// Room in the scroll area beside and below its widget.
constexpr int WIDTH_MARGIN = 5;
constexpr int HEIGHT_MARGIN = 20;

} // namespace

ZoomedView::ZoomedView(QScrollArea* scrollArea, ZoomWidget* zoom, QObject* parent)
    : QObject(parent), m_ScrollArea(scrollArea), m_Zoom(zoom)
{
    m_ScrollArea->installEventFilter(this);
}

int ZoomedView::GetFittingHeight() const
{
    return std::max(m_ScrollArea->height() - HEIGHT_MARGIN, 1);
}

void ZoomedView::Resize()
{
    const int width = m_Zoom->value() * (m_ScrollArea->width() - WIDTH_MARGIN);
    emit SizeAsked({std::max(width, 1), GetFittingHeight()});
    UpdateVisiblePart();
}

void ZoomedView::UpdateVisiblePart()
{
    const QScrollBar* bar = m_ScrollArea->horizontalScrollBar();
    // A hidden bar has no width of its own yet.
    const int visible = bar->isVisible() ? bar->width() : m_ScrollArea->viewport()->width();
    emit VisiblePartChanged(bar->value(), bar->value() + visible);
}

void ZoomedView::UpdateScrollRange(int minimum, int maximum)
{
    if (minimum == 0 && maximum == 0)
        emit VisiblePartChanged(-1, -1);
    else
        UpdateVisiblePart();
}

int ZoomedView::widgetWidth() const
{
    return m_ScrollArea->widget() ? std::max(m_ScrollArea->widget()->width(), 1) : 1;
}

void ZoomedView::followScrollArea()
{
    // The bar knows its new range only after the scroll area has seen the event, too.
    if (m_PlaceToKeep < 0) {
        m_PlaceToKeep = double(m_ScrollArea->horizontalScrollBar()->value()) / widgetWidth();
        QMetaObject::invokeMethod(this, &ZoomedView::restorePlace, Qt::QueuedConnection);
    }
    Resize();
}

void ZoomedView::restorePlace()
{
    m_ScrollArea->horizontalScrollBar()->setValue(qRound(m_PlaceToKeep * widgetWidth()));
    m_PlaceToKeep = -1;
}

bool ZoomedView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ScrollArea && event->type() == QEvent::Resize)
        followScrollArea();
    return QObject::eventFilter(watched, event);
}
