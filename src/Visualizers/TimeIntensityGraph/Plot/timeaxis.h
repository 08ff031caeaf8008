#pragma once

#include "rowspan.h"
#include <QColor>
#include <QPointF>
#include <QString>

class QPainter;

/// Maps rows to horizontal pixels and back, linearly; lenses derive from it. All pixels are
/// logical.
///
/// ToPixel gives an offset from the axis start, which every caller adds; ToIndex takes an absolute
/// pixel. A lens has to override these two only: everything else follows them. It tells where its
/// rows turn back, if they do.
class TimeAxis
{
public:
    TimeAxis() = default;

    virtual float ToPixel(int index) const;
    virtual int ToIndex(float x) const;
    /// The axis line with the title under its middle.
    virtual void Paint(QPainter& painter) const;
    virtual ~TimeAxis();
    TimeAxis(const TimeAxis&) = delete;
    TimeAxis& operator=(const TimeAxis&) = delete;

    /// ToPixel before it is narrowed to single precision.
    virtual double ToExactPixel(int index) const;
    /// The end of the rows that stand in order, from a first one on: all of them from left to right
    /// or all from right to left.
    virtual int OrderedEnd(int first) const;

    /// The absolute pixel of a row.
    double ToX(int index) const { return m_Start.x() + ToExactPixel(index); }
    /// Of the given rows, those through which a line passes between two absolute pixels, and two
    /// more on either side. Rows elsewhere may be among them on an axis that turns back.
    RowSpan RowsUnder(double left, double right, const RowSpan& rows) const;
    RowSpan GetRows() const { return {0, m_LastIndex + 1}; }

    void SetNumberOfPoints(int count) { m_LastIndex = count - 1; }
    /// The number of points less one.
    int GetLastIndex() const { return m_LastIndex; }
    void SetStart(const QPointF& start) { m_Start = start; }
    void SetEnd(const QPointF& end) { m_End = end; }
    QPointF GetStart() const { return m_Start; }
    QPointF GetEnd() const { return m_End; }
    void SetTitle(const QString& title) { m_Title = title; }
    QString GetTitle() const { return m_Title; }
    void SetColor(const QColor& color) { m_Color = color; }

protected:
    /// The number of intervals to divide by: never 0.
    int intervals() const { return m_LastIndex == 0 ? 1 : m_LastIndex; }
    double width() const { return m_End.x() - m_Start.x(); }

    QPointF m_Start;
    QPointF m_End;
    QColor m_Color = Qt::black;
    QString m_Title;
    int m_LastIndex = 0;

private:
    double linearPixel(int index) const { return width() * index / intervals(); }
};
