#pragma once

#include "plotareawidget.h"
#include "rubberband.h"
#include <QList>

class StudyLabelInstance;

/// A plot area in which the user gives spans to the labels of a study.
class PlotAreaLabelWidget : public PlotAreaWidget
{
    Q_OBJECT
public:
    explicit PlotAreaLabelWidget(QWidget* parent = nullptr);

    /// The list stays the caller's; null shows no labels.
    void SetLabelCollection(const QList<StudyLabelInstance*>* labels);
    /// The selected rows, the lower one first; false without a selection.
    bool GetSelection(int& from, int& to) const;
    void ClearSelection();

public slots:
    /// Adds the selected rows to the label.
    void labelClicked(StudyLabelInstance* label);

protected:
    std::unique_ptr<LinePlot> makePlot(int attribute) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    const QList<StudyLabelInstance*>* m_LabelCollection = nullptr;
    RubberBand m_Selection;
};
