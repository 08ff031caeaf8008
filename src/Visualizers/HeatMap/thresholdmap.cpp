#include "thresholdmap.h"

#include <QPainter>

ThresholdMap::ThresholdMap(QWidget* parent) : ResultMapWidget(parent) {}

void ThresholdMap::SetOldMatches(const std::shared_ptr<const CenterPoints>& matches)
{
    m_OldMatches = matches;
    markMatchesStale();
}

void ThresholdMap::reduceResults(const StepScale& scale)
{
    m_PositionValues = computePositionValueList(results(), scale);
}

void ThresholdMap::reduceMatches(const CenterPoints& matches, const StepScale& scale)
{
    m_Marks = computeMatchPixels(matches, scale);
    m_OldMarks = m_OldMatches ? computeMatchPixels(*m_OldMatches, scale) : std::vector<int>();
}

void ThresholdMap::paintMap(QPainter& painter)
{
    const int width = stepWidth();
    for (const PositionValue& entry : m_PositionValues) {
        if (entry.m_Value >= threshold())
            painter.fillRect(int(entry.m_X), height() / 2, width, height(), colorOf(entry.m_Value));
    }
    paintMarks(painter, m_OldMarks, Qt::lightGray);
    paintMarks(painter, m_Marks, Qt::black);
}

void ThresholdMap::paintMarks(QPainter& painter, const std::vector<int>& pixels,
                              const QColor& color) const
{
    for (const int pixel : pixels)
        painter.fillRect(pixel, 0, 1, height() / 2, color);
}
