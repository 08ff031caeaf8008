#pragma once

#include "resultmapwidget.h"
#include "resultreduction.h"

/// A row of confidences in their colours per frequency factor.
class HeatMapViz : public ResultMapWidget
{
    Q_OBJECT
public:
    explicit HeatMapViz(QWidget* parent = nullptr);

protected:
    void reduceResults(const StepScale& scale) override;
    void paintMap(QPainter& painter) override;

private:
    std::vector<std::vector<PositionValue>> m_Rows;
};
