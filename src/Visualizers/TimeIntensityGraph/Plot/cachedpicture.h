#pragma once

#include <QColor>
#include <QPixmap>
#include <functional>

/// A picture that is painted when it is first seen and copied from then on.
///
/// It notices by itself that its size or the pixel density of the screen has changed. Whoever
/// changes what it shows invalidates it.
class CachedPicture
{
public:
    /// Paints in logical pixels from the picture's left top corner.
    using Content = std::function<void(QPainter&)>;

    explicit CachedPicture(const QColor& ground = Qt::white) : m_Ground(ground) {}

    /// Forgets the picture and frees its memory.
    void Invalidate() { m_Pixmap = QPixmap(); }
    /// The part that shows its content, in logical pixels: nothing until it has been painted.
    QRect GetValidPart() const;
    /// Copies the picture to a place, after painting it where that is needed. size: in logical
    /// pixels; ratio: of device pixels to these.
    void Paint(QPainter& painter, const QPoint& place, const QSize& size, qreal ratio,
               const Content& content);

private:
    void paintContent(const QSize& size, qreal ratio, const Content& content);

    const QColor m_Ground;
    QPixmap m_Pixmap;
    QSize m_Size;
};
