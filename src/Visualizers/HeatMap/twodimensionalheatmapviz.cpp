#include "twodimensionalheatmapviz.h"

#include <QPainter>
#include <algorithm>

TwoDimensionalHeatMapViz::TwoDimensionalHeatMapViz(QWidget* parent) : ResultMapWidget(parent) {}

void TwoDimensionalHeatMapViz::reduceResults(const StepScale& scale)
{
    m_PositionValues = computePositionValueList(results(), scale);
    const auto isNothing = [](const PositionValue& entry) { return !(entry.m_Value > 0); };
    m_PositionValues.erase(
        std::remove_if(m_PositionValues.begin(), m_PositionValues.end(), isNothing),
        m_PositionValues.end());
    std::sort(m_PositionValues.begin(), m_PositionValues.end(),
              [](const auto& a, const auto& b) { return a.m_Value < b.m_Value; });
}

void TwoDimensionalHeatMapViz::paintMap(QPainter& painter)
{
    const int width = stepWidth();
    for (const PositionValue& entry : m_PositionValues)
        painter.fillRect(int(entry.m_X), 0, width, height(), colorOf(entry.m_Value));
}
