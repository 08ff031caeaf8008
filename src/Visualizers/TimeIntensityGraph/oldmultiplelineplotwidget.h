#pragma once

#include "overlaidlineswidget.h"

class DataSet;
class OldMultipleLinePlot;

/// Spans of rows and arrays over each other, to look at.
class OldMultipleLinePlotWidget : public OverlaidLinesWidget
{
    Q_OBJECT
public:
    explicit OldMultipleLinePlotWidget(QWidget* parent = nullptr);

    /// The picture is painted anew by RepaintLines, once all lines are there.
    void AddLine(DataSet* dataSet, int attribute, int from, int to, const QColor& color);
    /// The array stays the caller's.
    void AddLine(double* values, int size, const QColor& color);

protected:
    OldMultipleLinePlotWidget(bool rejecting, QWidget* parent);

    OldMultipleLinePlot& plot() const;
};
