#include "groundtruithwidget.h"

#include "groundtruithbehaviorcollection.h"
#include "grouppalette.h"
#include "pixelmath.h"
#include "plotlook.h"
#include "timeaxis.h"
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace
{

constexpr int tileWidth = 10000;

} // namespace

GroundTruithWidget::GroundTruithWidget(QWidget* parent) : QWidget(parent)
{
    // As in the main graph, so that rows stand at the same place in both.
    m_LinePlot.SetRightMargin(0);
}

void GroundTruithWidget::SetDataSet(DataSet* dataSet)
{
    m_DataSet = dataSet;
    m_LinePlot.SetDataSet(dataSet);
    rebuildTiles();
}

void GroundTruithWidget::SetBehaviorCollection(GroundTruithBehaviorCollection* behaviors)
{
    m_BehaviorCollection = behaviors;
    rebuildTiles();
}

void GroundTruithWidget::SetAttribute(int attribute)
{
    m_LinePlot.SetAttribute(attribute);
    rebuildTiles();
}

void GroundTruithWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_LinePlot.SetSize(float(height()), float(width()));
    rebuildTiles();
}

void GroundTruithWidget::rebuildTiles()
{
    m_Tiles = std::vector<CachedPicture>(size_t(std::ceil(width() / double(tileWidth))));
    update();
}

// Painters lose their way beyond 32767 pixels, which dense screens would have in a tile.
qreal GroundTruithWidget::tileRatio() const
{
    constexpr qreal highest = 32767.0 / tileWidth;
    return std::min(devicePixelRatioF(), highest);
}

void GroundTruithWidget::showTile(QPainter& painter, int index)
{
    const int left = index * tileWidth;
    // Only the last tile can be less than full, and only its part on the widget is ever seen.
    const QSize seen(std::min(tileWidth, width() - left), height());
    dropTilesFarFrom(index);
    m_Tiles[size_t(index)].Paint(painter, {left, 0}, seen, tileRatio(),
                                 [&](QPainter& tile) { paintTile(tile, left); });
}

void GroundTruithWidget::dropTilesFarFrom(int index)
{
    for (int i = 0; i < GetTileCount(); ++i) {
        if (std::abs(i - index) > 1)
            m_Tiles[size_t(i)].Invalidate();
    }
}

void GroundTruithWidget::paintTile(QPainter& painter, int left)
{
    if (!m_DataSet)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(QRect(0, 0, tileWidth, height()));
    painter.translate(-left, 0);
    painter.save();
    m_LinePlot.Paint(painter, true);
    painter.restore();
    paintBehaviors(painter);
}

void GroundTruithWidget::paintBehaviors(QPainter& painter) const
{
    if (!m_BehaviorCollection)
        return;
    painter.setOpacity(MarkOpacity);
    const TimeAxis& axis = *m_LinePlot.GetTimeAxis();
    const auto toPixel = [&](int row) {
        return TruncateToInt(double(axis.ToPixel(row)) + axis.GetStart().x());
    };
    const QStringList names = m_BehaviorCollection->Names();
    for (int i = 0; i < names.size(); ++i) {
        const QColor color = GroupColor(i);
        for (const GroundTruithInstance* instance : *m_BehaviorCollection->Get(names[i])) {
            const int from = toPixel(instance->GetFrom());
            // The end may be no row of the data, which stands before the axis.
            const int to = toPixel(instance->GetTo());
            // However short an instance is, it shows.
            painter.fillRect(std::min(from, to), 0, std::max(std::abs(to - from), 1), height(),
                             color);
        }
    }
}

void GroundTruithWidget::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const int first = event->rect().left() / tileWidth;
    const int last = std::min(event->rect().right() / tileWidth, GetTileCount() - 1);
    for (int i = first; i <= last; ++i)
        showTile(painter, i);
}
