#pragma once

#include "resultmapwidget.h"
#include "resultreduction.h"

/// Where the confidence reaches the threshold, in its colour, and the matches extracted there, in
/// black. Matches that the last change of the threshold has taken away stay in pale grey.
class ThresholdMap : public ResultMapWidget
{
    Q_OBJECT
public:
    explicit ThresholdMap(QWidget* parent = nullptr);

    /// The matches before the last change of the threshold; may be null.
    void SetOldMatches(const std::shared_ptr<const CenterPoints>& matches);

protected:
    void reduceResults(const StepScale& scale) override;
    void reduceMatches(const CenterPoints& matches, const StepScale& scale) override;
    void paintMap(QPainter& painter) override;

private:
    void paintMarks(QPainter& painter, const std::vector<int>& pixels, const QColor& color) const;

    std::shared_ptr<const CenterPoints> m_OldMatches;
    std::vector<PositionValue> m_PositionValues;
    std::vector<int> m_Marks;
    std::vector<int> m_OldMarks;
};
