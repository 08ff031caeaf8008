#include "pixmapcache.h"

#include <QtMath>

PixmapCache::PixmapCache(int height, qreal devicePixelRatio)
    : QPixmap(qCeil(Width * devicePixelRatio), qCeil(height * devicePixelRatio))
{
    setDevicePixelRatio(devicePixelRatio);
}
