#pragma once

#include <QColor>

class CutSegment;
class DataSet;
class QPainter;
class TimeAxis;
class VerticalAxis;

/// A colour with components from 0 to 1 on the ramp from blue over cyan and yellow to red.
struct HeatRgb {
    float m_Red = 0;
    float m_Green = 0;
    float m_Blue = 0;

    QColor ToColor() const;
};

/// The colour of a row's magnitude within the raw limits of its attribute. A missing value has
/// the colour of the lowest.
HeatRgb HeatColor(const DataSet& data, int row, int attribute);

/// What rows painted in heat colours are painted from and to.
struct HeatRows {
    const DataSet& m_Data;
    const int m_AttributeId;
    const TimeAxis& m_TimeAxis;
    const VerticalAxis& m_VerticalAxis;
    /// The screen's y of a value is m_BaseY plus m_Direction times its pixel.
    const double m_BaseY;
    const int m_Direction;

    /// One line piece per row of the segment; row r stands at point r + shift of the time axis.
    /// Missing values leave a gap.
    void Paint(QPainter& painter, const CutSegment& segment, int shift) const;
};
