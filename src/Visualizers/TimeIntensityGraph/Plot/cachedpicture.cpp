#include "cachedpicture.h"

#include <QPainter>

QRect CachedPicture::GetValidPart() const
{
    return m_Pixmap.isNull() ? QRect() : QRect(QPoint(), m_Size);
}

void CachedPicture::Paint(QPainter& painter, const QPoint& place, const QSize& size, qreal ratio,
                          const Content& content)
{
    const bool isUpToDate = GetValidPart().size() == size && m_Pixmap.devicePixelRatioF() == ratio;
    if (!isUpToDate)
        paintContent(size, ratio, content);
    if (!m_Pixmap.isNull())
        painter.drawPixmap(place, m_Pixmap);
}

void CachedPicture::paintContent(const QSize& size, qreal ratio, const Content& content)
{
    m_Size = size;
    m_Pixmap = QPixmap(size * ratio);
    if (m_Pixmap.isNull())
        return;
    m_Pixmap.setDevicePixelRatio(ratio);
    m_Pixmap.fill(m_Ground);
    QPainter painter(&m_Pixmap);
    content(painter);
}
