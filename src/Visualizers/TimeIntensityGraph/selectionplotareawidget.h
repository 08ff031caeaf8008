#pragma once

#include "plotareawidget.h"
#include <optional>

/// A plot area with a highlighted range of rows.
class SelectionPlotAreaWidget : public PlotAreaWidget
{
    Q_OBJECT
public:
    using PlotAreaWidget::PlotAreaWidget;

    void SetSelection(int from, int to);
    void ClearSelection();
    /// False when nothing is highlighted.
    bool GetSelection(int& from, int& to) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<RowSpan> m_Selection;
};
