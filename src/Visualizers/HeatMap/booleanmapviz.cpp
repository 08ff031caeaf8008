#include "booleanmapviz.h"

#include "resultreduction.h"
#include <QPainter>

BooleanMapViz::BooleanMapViz(QWidget* parent) : ResultMapWidget(parent) {}

void BooleanMapViz::reduceMatches(const CenterPoints& matches, const StepScale& scale)
{
    m_Rows.clear();
    for (const std::vector<int>& centers : matches)
        m_Rows.push_back(computeMatchPixels(centers, scale));
}

void BooleanMapViz::paintMap(QPainter& painter)
{
    const int width = stepWidth();
    for (size_t r = 0; r < m_Rows.size(); ++r) {
        const QRect row = rowOf(int(r));
        for (const int pixel : m_Rows[r])
            painter.fillRect(pixel, row.top(), width, row.height(), Qt::black);
    }
}
