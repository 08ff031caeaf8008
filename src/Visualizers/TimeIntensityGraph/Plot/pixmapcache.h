#pragma once

#include <QPixmap>

/// A tile of a plot area that remembers whether its plots have been painted.
class PixmapCache : public QPixmap
{
public:
    static constexpr int Width = 1200;

    /// A tile of the height in logical pixels, as sharp as the screen it is made for.
    PixmapCache(int height, qreal devicePixelRatio);

    bool m_Painted = false;
};
