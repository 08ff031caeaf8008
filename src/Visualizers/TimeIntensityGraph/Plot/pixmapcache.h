#pragma once

#include <QPixmap>
#include <QtMath>

/// A tile of a plot area that remembers whether its plots have been painted.
class PixmapCache : public QPixmap
{
public:
    /// Logical pixels.
    static constexpr int Width = 1200;

    /// A tile of a height in logical pixels, for a screen of that many device pixels in each.
    PixmapCache(int height, qreal devicePixelRatio)
        : QPixmap(qCeil(Width * devicePixelRatio), qCeil(height * devicePixelRatio))
    {
        setDevicePixelRatio(devicePixelRatio);
    }

    bool m_Painted = false;
};
