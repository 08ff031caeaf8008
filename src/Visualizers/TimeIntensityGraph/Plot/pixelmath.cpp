#include "pixelmath.h"

#include <QPaintDevice>
#include <QPainter>
#include <cmath>
#include <limits>

int TruncateToInt(double value)
{
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return std::isnan(value) ? 0 : int(qBound(lowest, value, highest));
}

double SafeCoordinate(double value)
{
    constexpr double limit = 1e6;
    return std::isnan(value) ? 0 : qBound(-limit, value, limit);
}

QRectF VisibleRect(const QPainter& painter)
{
    constexpr double unlimited = 1e9;
    QRectF visible(-unlimited, -unlimited, 2 * unlimited, 2 * unlimited);
    const QPaintDevice* device = painter.device();
    if (!device)
        return visible;
    // A widget measures itself in its own units, a picture in its pixels. Both transform and
    // measures leave out where a widget stands in its window.
    const bool isWidget = device->devType() == QInternal::Widget;
    const qreal ratio = isWidget ? device->devicePixelRatioF() : 1;
    const QRectF area(0, 0, device->width() * ratio, device->height() * ratio);
    if (!area.isEmpty())
        visible = painter.combinedTransform().inverted().mapRect(area);
    return painter.hasClipping() ? visible & painter.clipBoundingRect() : visible;
}

double HorizontalScale(const QPainter& painter)
{
    const QTransform& transform = painter.deviceTransform();
    return std::hypot(transform.m11(), transform.m12());
}

QPen FastPen(const QPainter& painter, const QColor& color, double width)
{
    // A little below a whole pixel, which rounding must not exceed.
    constexpr double widest = 0.999;
    const double scale = HorizontalScale(painter);
    return {color, width * scale <= 1 ? width : widest / scale};
}
