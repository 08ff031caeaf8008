#include "heatmapviz.h"

#include <QPainter>

HeatMapViz::HeatMapViz(QWidget* parent) : ResultMapWidget(parent) {}

void HeatMapViz::reduceResults(const StepScale& scale)
{
    m_Rows.clear();
    for (int r = 0; r < results().m_Factors; ++r)
        m_Rows.push_back(computePositionValueList(results(), r, scale));
}

void HeatMapViz::paintMap(QPainter& painter)
{
    const int width = stepWidth();
    for (size_t r = 0; r < m_Rows.size(); ++r) {
        const QRect row = rowOf(int(r));
        for (const PositionValue& entry : m_Rows[r]) {
            if (entry.m_Value > 0)
                painter.fillRect(int(entry.m_X), row.top(), width, row.height(),
                                 colorOf(entry.m_Value));
        }
    }
}
