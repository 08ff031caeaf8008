#pragma once

#include <QColor>
#include <QPointF>
#include <QString>

class QPainter;

/// Maps rows to horizontal pixels and back, linearly; lenses derive from it.
///
/// ToPixel gives an offset from the axis start, which every caller adds; ToIndex takes an absolute
/// pixel.
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

    /// Rows are mapped by this class itself, all equally wide.
    bool IsUniform() const;
    /// ToPixel of a uniform axis before it is narrowed to single precision.
    double ToExactPixel(double index) const;

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
};
