#pragma once

#include "resultmapwidget.h"

/// A row of the steps with a match per frequency factor.
class BooleanMapViz : public ResultMapWidget
{
    Q_OBJECT
public:
    explicit BooleanMapViz(QWidget* parent = nullptr);

protected:
    void reduceMatches(const CenterPoints& matches, const StepScale& scale) override;
    void paintMap(QPainter& painter) override;

private:
    /// Pixels.
    std::vector<std::vector<int>> m_Rows;
};
