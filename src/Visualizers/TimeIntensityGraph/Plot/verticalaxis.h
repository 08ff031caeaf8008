#pragma once

#include <QColor>
#include <QPointF>
#include <QString>

class QPainter;

/// Maps values to vertical pixels and back.
///
/// ToPixel gives the height above the axis bottom: the screen's y is GetBottom().y() minus it.
class VerticalAxis
{
public:
    float ToPixel(float value) const
    {
        const float span = this->span();
        return float((m_Bottom.y() - m_Top.y()) * (double(value) - double(m_Min)) / double(span));
    }
    /// The value at the screen's y.
    float ToValue(float y) const;

    /// Axis and title, when the axis is visible.
    void Paint(QPainter& painter) const;
    /// The axis line with ticks and their values, moved by xOffset.
    void PaintAxis(QPainter& painter, int xOffset) const;
    void PaintTitle(QPainter& painter) const;

    void SetVisible(bool visible) { m_Visible = visible; }
    void SetColor(const QColor& color) { m_Color = color; }
    void SetTitle(const QString& title) { m_Title = title; }
    QString GetTitle() const { return m_Title; }
    void SetAttribute(int attribute) { m_AttributeId = attribute; }
    int GetAttribute() const { return m_AttributeId; }
    void SetBottom(const QPointF& bottom) { m_Bottom = bottom; }
    void SetTop(const QPointF& top) { m_Top = top; }
    QPointF GetBottom() const { return m_Bottom; }
    QPointF GetTop() const { return m_Top; }
    void SetLabelOffset(int offset) { m_LabelOffset = offset; }
    /// Limits beyond single precision stop at its ends.
    void SetMaximum(double maximum);
    void SetMinimum(double minimum);
    float GetMaximum() const { return m_Max; }
    float GetMinimum() const { return m_Min; }

private:
    float span() const { return m_Max == m_Min ? 1.0F : m_Max - m_Min; }
    void paintTick(QPainter& painter, double x, float value) const;

    bool m_Visible = true;
    QColor m_Color = Qt::black;
    QString m_Title;
    int m_AttributeId = -1;
    QPointF m_Bottom;
    QPointF m_Top;
    int m_LabelOffset = 0;
    float m_Max = 0;
    float m_Min = 0;
};
