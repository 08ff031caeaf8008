#pragma once

#include "dataset.h"

/// What a view shows of an attribute: its name, its values, the limits of its axis and its zero
/// line. Equal ones look alike.
struct AttributeLook {
    QString m_Name;
    quint64 m_ColumnVersion = 0;
    double m_Minimum = 0;
    double m_Maximum = 0;
    bool m_HasZeroLine = false;

    AttributeLook() = default;
    /// Of an attribute of the data set; an empty one when there is no such attribute.
    AttributeLook(const DataSet& data, int attribute)
    {
        if (attribute < 0 || attribute >= data.GetAttributeCount())
            return;
        m_Name = data.GetAttributeName(attribute);
        m_ColumnVersion = data.GetColumnVersion(attribute);
        m_Minimum = data.GetMinValue(attribute);
        m_Maximum = data.GetMaxValue(attribute);
        m_HasZeroLine = data.GetZeroLine(attribute);
    }

    bool operator==(const AttributeLook& other) const
    {
        return m_Name == other.m_Name && m_ColumnVersion == other.m_ColumnVersion &&
               m_Minimum == other.m_Minimum && m_Maximum == other.m_Maximum &&
               m_HasZeroLine == other.m_HasZeroLine;
    }
    bool operator!=(const AttributeLook& other) const { return !(*this == other); }
};
