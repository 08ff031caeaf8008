#pragma once

#include "columnstore.h"
#include <QStringList>

/// One time step: a label and one value per attribute, in attribute order.
///
/// A row of a data set is only a view: label and values stand in the data set. A row made by
/// itself holds them until it is added to a data set. Rows may hold fewer values than their data
/// set has attributes, or more; a value that a row lacks reads as not-a-number.
class DataRow
{
public:
    DataRow() = default;
    DataRow(const DataRow&) = delete;
    DataRow& operator=(const DataRow&) = delete;

    void SetLabel(const QString& label);
    QString GetLabel() const;

    /// Replaces all values by the texts, each read as QString::toDouble reads it; a text that is
    /// no number becomes 0.
    void SetValues(const QStringList& texts);
    /// Replaces all values by count values from memory.
    void SetValues(const double* values, int count);
    void AddValue(double value);

    double GetValue(int attribute) const
    {
        return m_Store ? m_Store->GetValue(m_Row, attribute) : looseValue(attribute);
    }
    /// Does nothing for an attribute that the row has no value for.
    void SetValue(int attribute, double value);
    double GetFirstValue() const { return GetValue(0); }
    double GetLastValue() const { return GetValue(GetValueCount() - 1); }
    int GetValueCount() const;
    /// Removes a value, those behind it move up. Does nothing when out of range.
    void RemoveValue(int attribute);

    /// Makes this the view on a row of a store, which outlives it.
    void LookAt(ColumnStore& store, int row);
    /// Appends values and label to a store as a new row and becomes the view on it.
    void MoveTo(ColumnStore& store);
    /// The number of the row in that store, -1 when it does not stand there.
    int GetRowIn(const ColumnStore& store) const { return m_Store == &store ? m_Row : -1; }

private:
    // A row that stands in no data set.
    struct Loose {
        QString m_Label;
        std::vector<double> m_Values;
    };

    double looseValue(int attribute) const;
    std::vector<double>& looseValues();

    ColumnStore* m_Store = nullptr;
    int m_Row = -1;
    // Null for a view, and for a row that nothing has been written to yet.
    std::unique_ptr<Loose> m_Loose;
};
