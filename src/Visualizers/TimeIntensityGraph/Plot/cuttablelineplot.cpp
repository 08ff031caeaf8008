#include "cuttablelineplot.h"

#include "dataset.h"
#include "pixelmath.h"
#include "timeaxis.h"
#include "verticalaxis.h"
#include <QPainter>
#include <algorithm>

CuttableLinePlot::CuttableLinePlot(int attribute, CutCollection* cuts) : LinePlot(attribute)
{
    auto line = std::make_unique<CuttableAmplitudeLine>(attribute, cuts);
    m_CuttableLine = line.get();
    setAmplitudeLine(std::move(line));
}

void CuttableLinePlot::Paint(QPainter& painter, int from, int to, bool grid)
{
    LinePlot::Paint(painter, from, to, grid);
    paintZeroLine(painter);
}

void CuttableLinePlot::Paint(QPainter& painter, bool grid)
{
    LinePlot::Paint(painter, grid);
    paintZeroLine(painter);
}

void CuttableLinePlot::paintZeroLine(QPainter& painter) const
{
    if (!m_DataSet || !m_DataSet->GetZeroLine(m_AttributeId))
        return;
    const double y =
        SafeCoordinate(m_VerticalAxis->GetBottom().y() - double(m_VerticalAxis->ToPixel(0)));
    const QRectF visible = VisibleRect(painter);
    const double left = std::max(m_TimeAxis->GetStart().x(), visible.left() - 2);
    const double right = std::min(m_TimeAxis->GetEnd().x(), visible.right() + 2);
    if (left <= right)
        painter.drawLine(QPointF(left, y), QPointF(right, y));
}
