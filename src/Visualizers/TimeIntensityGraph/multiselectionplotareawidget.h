#pragma once

#include "plotareawidget.h"
#include <QList>

/// A plot area with a list of marked ranges of rows and a rubber band for the next one. Two more
/// ranges can be set for the calibration of head angles.
class MultiSelectionPlotAreaWidget : public PlotAreaWidget
{
    Q_OBJECT
public:
    using PlotAreaWidget::PlotAreaWidget;

    void AddRange(int from, int to);
    void ClearRanges();
    const QList<RowRange>& GetRanges() const { return m_Ranges; }

    /// The rows under the rubber band, the lower one first; false without a band.
    bool GetSelection(int& from, int& to) const;
    void ClearSelection();

    /// Ranges drawn in blue and in green; an unset one is not drawn.
    void SetHeadCalibration(const RowRange& first, const RowRange& second);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QList<RowRange> m_Ranges;
    RowRange m_FirstCalibration;
    RowRange m_SecondCalibration;
    // Pixels, -1 when unset.
    int m_DragStart = -1;
    int m_DragEnd = -1;
};
