#include "selectionrange.h"

#include "pixelmath.h"
#include <QPainter>
#include <algorithm>

void PaintSelected(QPainter& painter, const QRect& area)
{
    painter.fillRect(area, Qt::yellow);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area);
}

void SelectionRange::Begin(double x, double leftLimit)
{
    Clear();
    m_Active = true;
    m_Start = std::max(x, leftLimit);
}

void SelectionRange::SetEnd(double x)
{
    if (m_Active)
        m_End = x;
}

bool SelectionRange::IsValid() const
{
    return m_Start != -1.0 && m_End != -1.0;
}

void SelectionRange::Paint(QPainter& painter, int height) const
{
    if (!IsValid() || m_Start > m_End)
        return;
    PaintSelected(painter, {TruncateToInt(m_Start), 0, TruncateToInt(m_End - m_Start), height - 1});
}
