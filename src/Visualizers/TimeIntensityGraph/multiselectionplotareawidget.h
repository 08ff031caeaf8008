#pragma once

#include "plotareawidget.h"
#include "rubberband.h"
#include <QList>
#include <optional>

/// A plot area with a list of marked ranges of rows and a rubber band for the next one. Two more
/// ranges can be set for the calibration of head angles.
class MultiSelectionPlotAreaWidget : public PlotAreaWidget
{
    Q_OBJECT
public:
    using PlotAreaWidget::PlotAreaWidget;

    void AddRange(int from, int to);
    void ClearRanges();
    const QList<RowSpan>& GetRanges() const { return m_Ranges; }

    /// The rows under the rubber band, the lower one first; false without a band.
    bool GetSelection(int& from, int& to) const;
    void ClearSelection();

    /// Rows drawn in blue and in green, where there are any.
    void SetHeadCalibration(const std::optional<RowSpan>& first,
                            const std::optional<RowSpan>& second);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QList<RowSpan> m_Ranges;
    std::optional<RowSpan> m_FirstCalibration;
    std::optional<RowSpan> m_SecondCalibration;
    RubberBand m_Drag;
};
