#pragma once

#include "resultmapwidget.h"
#include "resultreduction.h"

/// The highest confidence of all frequency factors in its colour, over the steps where there is
/// any. The higher of two that share a pixel is the one that is seen.
class TwoDimensionalHeatMapViz : public ResultMapWidget
{
    Q_OBJECT
public:
    explicit TwoDimensionalHeatMapViz(QWidget* parent = nullptr);

protected:
    void reduceResults(const StepScale& scale) override;
    void paintMap(QPainter& painter) override;

private:
    /// Ascending by value.
    std::vector<PositionValue> m_PositionValues;
};
