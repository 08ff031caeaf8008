#pragma once

#include "resultmapwidget.h"
#include "resultreduction.h"

/// The confidences of a range of steps as a line, with the threshold across it.
class ThresholdLineGraphWidget : public ResultMapWidget
{
    Q_OBJECT
public:
    explicit ThresholdLineGraphWidget(QWidget* parent = nullptr);

    /// Shows the steps from up to, but without, to; with an empty range all of them.
    void SetZoomRange(int from, int to);

protected:
    StepScale makeScale() const override;
    void reduceResults(const StepScale& scale) override;
    void reduceMatches(const CenterPoints& matches, const StepScale& scale) override;
    void paintMap(QPainter& painter) override;

private:
    double toY(float confidence) const;

    int m_From = 0;
    int m_To = 0;
    std::vector<PositionValue> m_PositionValues;
    std::vector<int> m_Marks;
};
