#include "thresholdmapdistribution.h"

#include "resultreduction.h"
#include <QPainter>
#include <algorithm>

namespace
{
constexpr int barWidth = 8;
}

ThresholdMapDistribution::ThresholdMapDistribution(QWidget* parent) : ResultMapWidget(parent) {}

void ThresholdMapDistribution::reduceMatches(const CenterPoints& matches, const StepScale& scale)
{
    m_Counts = computeMatchDistribution(matches, scale, barWidth);
}

void ThresholdMapDistribution::paintMap(QPainter& painter)
{
    if (m_Counts.empty())
        return;
    const double most = *std::max_element(m_Counts.begin(), m_Counts.end());
    double left = double(makeScale().GetStart());
    for (const int count : m_Counts) {
        const double top = height() * (1 - count / most);
        painter.fillRect(QRectF(left, top, barWidth - 1, height() - top), Qt::darkBlue);
        left += barWidth;
    }
}
