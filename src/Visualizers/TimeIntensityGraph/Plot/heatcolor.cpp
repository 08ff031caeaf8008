#include "heatcolor.h"

#include "cutsegment.h"
#include "dataset.h"
#include "pixelmath.h"
#include "timeaxis.h"
#include "verticalaxis.h"
#include <QPainter>
#include <algorithm>
#include <cmath>

QColor HeatRgb::ToColor() const
{
    const auto component = [](float value) { return qreal(qBound(0.0F, value, 1.0F)); };
    return QColor::fromRgbF(component(m_Red), component(m_Green), component(m_Blue));
}

HeatRgb HeatColor(const DataSet& data, int row, int attribute)
{
    const double value = std::abs(data.GetValue(row, attribute));
    const double low = std::max(0.0F, data.GetRawMin(attribute));
    const double high = std::abs(data.GetRawMax(attribute));
    const double span = high == low ? 1 : high - low;
    const double place = (value - low) / span;
    const double x = 4 * (std::isnan(place) ? 0 : qBound(0.0, place, 1.0)) + 1;
    const auto ramp = [](double level) { return float(std::max(0.0, level / 2)); };
    return {ramp(3 - std::abs(x - 4) - std::abs(x - 5)),
            ramp(4 - std::abs(x - 2) - std::abs(x - 4)),
            ramp(3 - std::abs(x - 1) - std::abs(x - 2))};
}

void HeatRows::Paint(QPainter& painter, const CutSegment& segment, int shift) const
{
    if (m_AttributeId < 0 || m_AttributeId >= m_Data.GetAttributeCount())
        return;
    const auto value = [this](int row) { return m_Data.GetValue(row, m_AttributeId); };
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
