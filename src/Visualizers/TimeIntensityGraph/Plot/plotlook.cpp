#include "plotlook.h"

#include "pixelmath.h"
#include <QPainter>
#include <QVector>
#include <algorithm>
#include <cmath>

namespace
{
constexpr int spacing = 10;

// The first grid line from start on that is not left of the visible edge.
double firstLine(double start, double edge)
{
    return edge <= start ? start : start + std::floor((edge - start) / spacing) * spacing;
}
} // namespace

void PaintGrid(QPainter& painter, int left, int top, double right, double bottom, double opacity)
{
    const QRectF visible = VisibleRect(painter);
    const double rightEnd = std::min(right, visible.right() + 1);
    const double bottomEnd = std::min(bottom, visible.bottom() + 1);
    const double leftEnd = std::max(double(left), visible.left() - 1);
    QVector<QLineF> lines;
    for (double x = firstLine(left, visible.left()); x <= rightEnd; x += spacing)
        lines.append(QLineF(x, top, x, bottom));
    for (double y = top; y <= bottomEnd && leftEnd <= rightEnd; y += spacing)
        lines.append(QLineF(leftEnd, y, rightEnd, y));
    painter.save();
    painter.setOpacity(opacity);
    painter.setPen(Qt::black);
    painter.drawLines(lines);
    painter.restore();
}
