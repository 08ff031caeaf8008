#pragma once

#include "rowspan.h"
#include <QWidget>

class DataSet;
class QGridLayout;
class QSpinBox;
class SelectionPlotAreaWidget;

/// Two ranges of rows in spin boxes beside their plot: the one of a segment, which the plot
/// highlights, and the one that the plot shows.
class SegmentResizeWidget : public QWidget
{
    Q_OBJECT
public:
    explicit SegmentResizeWidget(QWidget* parent = nullptr);

    /// Limits both ranges to the data set's rows and shows all of them.
    void SetDataSet(DataSet* dataSet);
    /// The attribute plotted, at first 0.
    void SetAttribute(int attribute);
    /// The first and last row that either range may reach.
    void SetLimits(int from, int to);
    void SetPlotRange(int from, int to);
    void SetSelection(int from, int to);
    /// The range in the boxes, which may start behind its end.
    RowSpan GetSelection() const;

public slots:
    void SetSelectionFromRange(int from);
    void SetSelectionToRange(int to);
    void SetFromPlotRange(int from);
    void SetToPlotRange(int to);

signals:
    void SelectionChanged();

private:
    struct Boxes {
        QSpinBox* m_From;
        QSpinBox* m_To;
    };
    Boxes makeBoxes(QGridLayout* grid, const QString& name, const QString& hint);
    void showSelection();
    void showPlotRange();

    DataSet* m_DataSet = nullptr;
    int m_Attribute = 0;
    SelectionPlotAreaWidget* m_Plot;
    Boxes m_Selection;
    Boxes m_PlotRange;
};
