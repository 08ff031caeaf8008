#pragma once

#include "resultmapwidget.h"

/// How many of the extracted matches lie where, as bars.
class ThresholdMapDistribution : public ResultMapWidget
{
    Q_OBJECT
public:
    explicit ThresholdMapDistribution(QWidget* parent = nullptr);

protected:
    void reduceMatches(const CenterPoints& matches, const StepScale& scale) override;
    void paintMap(QPainter& painter) override;

private:
    std::vector<int> m_Counts;
};
