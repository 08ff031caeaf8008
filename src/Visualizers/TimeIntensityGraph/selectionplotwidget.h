#pragma once

#include "lineplotwidget.h"
#include "rubberband.h"

/// A plot in which the user drags a selection; a second range can be set from outside.
class SelectionPlotWidget : public LinePlotWidget
{
    Q_OBJECT
public:
    explicit SelectionPlotWidget(int attribute, QWidget* parent = nullptr);

    /// The rows of the selection, kept inside the data; false when it is under a pixel wide.
    bool GetSelection(int& from, int& to) const;
    /// Selects the pixels of those rows.
    void SetSelection(int from, int to);
    void ClearSelection();
    void SetSecondSelection(int from, int to);
    void ClearSecondSelection();

signals:
    void selectionMade();
    void removeZoom();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

    /// The plot with both selections, for widgets that paint more on top.
    void paintWithSelections(QPainter& painter);

    RubberBand m_Selection;
    SelectionRange m_SecondSelection;

private:
    void select(SelectionRange& range, int from, int to);
};
