#pragma once

#include "rowlabel.h"
#include <QStringList>
#include <memory>

/// One time step: a label and one value per attribute, in attribute order.
///
/// A row may hold fewer values than its data set has attributes. Memory behind the last value
/// is readable up to the capacity and holds not-a-number, so that a missing value reads as NaN;
/// DataSet keeps the capacity of all its rows at its attribute count or above.
class DataRow
{
public:
    DataRow() = default;
    DataRow(const DataRow&) = delete;
    DataRow& operator=(const DataRow&) = delete;

    void SetLabel(const QString& label) { m_Label.SetText(label); }
    /// Labels the row with a number without storing its text; GetLabel makes it.
    void SetNumberLabel(int number) { m_Label.SetNumber(number); }
    QString GetLabel() const { return m_Label.ToString(); }
    bool HasLabel(const QString& label) const { return m_Label.Equals(label); }

    /// Replaces all values by the texts, each read as QString::toDouble reads it; a text that is
    /// no number becomes 0.
    void SetValues(const QStringList& texts);
    /// Replaces all values by count values from memory.
    void SetValues(const double* values, int count);

    void AddValue(double value)
    {
        if (m_Count == m_Capacity)
            Reserve(m_Capacity + m_Capacity / 2 + 2);
        m_Values[size_t(m_Count++)] = value;
    }

    /// No bounds check; NaN between the value count and the capacity.
    double GetValue(int attribute) const { return m_Values[size_t(attribute)]; }
    /// All values in a row, for inner loops; readable as GetValue is.
    const double* GetValues() const { return m_Values.get(); }
    /// Does nothing for an attribute that the row has no value for.
    void SetValue(int attribute, double value);
    double GetFirstValue() const { return m_Values[0]; }
    double GetLastValue() const { return m_Values[size_t(m_Count - 1)]; }
    int GetValueCount() const { return m_Count; }
    /// Removes a value, those behind it move up. Does nothing when out of range.
    void RemoveValue(int attribute);

    /// Makes room for capacity values, filled with NaN behind the last value.
    void Reserve(int capacity);

private:
    std::unique_ptr<double[]> m_Values;
    int m_Count = 0;
    int m_Capacity = 0;
    RowLabel m_Label;
};
