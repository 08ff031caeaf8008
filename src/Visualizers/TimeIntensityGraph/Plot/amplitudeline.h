#pragma once

#include "rowspan.h"
#include <QColor>
#include <QPointF>

class DataSet;
class QPainter;
class TimeAxis;
class VerticalAxis;

/// Draws one attribute of a data set, or an array, as a line between two axes it does not own.
class AmplitudeLine
{
public:
    explicit AmplitudeLine(int attribute = -1) : m_AttributeId(attribute) {}

    virtual void PaintDataSet(QPainter& painter);
    virtual void PaintArray(QPainter& painter);
    virtual ~AmplitudeLine();
    AmplitudeLine(const AmplitudeLine&) = delete;
    AmplitudeLine& operator=(const AmplitudeLine&) = delete;

    void Paint(QPainter& painter);

    void SetAttribute(int attribute) { m_AttributeId = attribute; }
    int GetAttribute() const { return m_AttributeId; }
    void SetDataSet(DataSet* data) { m_DataSet = data; }
    DataSet* GetDataSet() const { return m_DataSet; }
    /// The array stays the caller's.
    void SetData(double* values, int size);
    double* GetData() const { return m_Array; }
    void SetVerticalAxis(VerticalAxis* axis) { m_VerticalAxis = axis; }
    void SetTimeAxis(TimeAxis* axis) { m_TimeAxis = axis; }
    TimeAxis* GetTimeAxis() const { return m_TimeAxis; }
    void SetColor(const QColor& color) { m_Color = color; }
    QColor GetColor() const { return m_Color; }
    /// 0 (invisible) to 1.
    void SetAlpha(double alpha) { m_Alpha = alpha; }
    void SetPenWidth(float width) { m_PenWidth = width; }
    /// Rows from up to, but without, to; -1 in either means all.
    void SetRange(int from, int to);
    /// The rows that are painted: the range, cut to the rows that exist.
    RowSpan GetRange() const;

protected:
    /// The line through these rows, with row origin at the axis start. Rows that the painter cannot
    /// show are left out.
    void paintRows(QPainter& painter, const RowSpan& rows, int origin) const;

    int m_AttributeId;
    DataSet* m_DataSet = nullptr;
    double m_Alpha = 1.0;
    double* m_Array = nullptr;
    int m_ArraySize = 0;
    VerticalAxis* m_VerticalAxis = nullptr;
    TimeAxis* m_TimeAxis = nullptr;
    QColor m_Color = Qt::black;
    float m_PenWidth = 0.3F;
    int m_From = -1;
    int m_To = -1;

private:
    QPointF toPoint(int index, double value) const;
    RowSpan visibleRows(const QPainter& painter, int origin, const RowSpan& rows) const;
};
