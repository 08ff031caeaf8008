#include "heatrows.h"

#include "cutsegment.h"
#include "dataset.h"
#include "heatcolor.h"
#include "pixelmath.h"
#include "timeaxis.h"
#include "verticalaxis.h"
#include <QPainter>
#include <algorithm>
#include <cmath>

void HeatRows::Paint(QPainter& painter, const CutSegment& segment, int shift) const
{
    if (m_AttributeId < 0 || m_AttributeId >= m_Data.GetAttributeCount())
        return;
    const auto value = [this](int row) { return m_Data.GetRow(row)->GetValue(m_AttributeId); };
    const auto point = [&](int row) {
        const double x = m_TimeAxis.GetStart().x() + double(m_TimeAxis.ToPixel(row + shift));
        const double y = m_BaseY + m_Direction * double(m_VerticalAxis.ToPixel(float(value(row))));
        return QPointF(x, SafeCoordinate(y));
    };
    const int last = std::min(segment.GetTo(), m_Data.GetRowCount() - 1);
    for (int row = std::max(segment.GetFrom(), 0); row < last; ++row) {
        if (!std::isfinite(value(row)) || !std::isfinite(value(row + 1)))
            continue;
        painter.setPen(HeatColor(m_Data, row, m_AttributeId).ToColor());
        painter.drawLine(point(row), point(row + 1));
    }
}
