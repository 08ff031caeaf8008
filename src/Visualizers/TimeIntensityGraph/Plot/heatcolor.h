#pragma once

#include <QColor>

class DataSet;

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
