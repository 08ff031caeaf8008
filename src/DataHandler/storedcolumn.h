#pragma once

#include "columnsummary.h"
#include "datacolumn.h"
#include "valuerange.h"
#include <memory>

/// A column together with what is known about its values.
class StoredColumn
{
public:
    explicit StoredColumn(DataColumn&& values) : m_Values(std::move(values)) {}

    const DataColumn& GetValues() const { return m_Values; }
    double GetValue(int row) const { return m_Values[row]; }
    /// Range and summary know of the new value after the next Update only.
    void SetValue(int row, double value)
    {
        m_Values[row] = value;
        m_HasChanged = true;
    }
    /// For whoever changes many values or their number.
    DataColumn& ChangeValues();
    /// Takes the range anew when values have changed since the last time. Several columns may be
    /// updated at the same time.
    void Update();
    /// As of the last Update.
    const ValueRange& GetRange() const { return m_Range; }
    /// A number that no other content of any column has, as of the last Update: a column that is
    /// moved keeps it, values that change take it away.
    quint64 GetVersion() const { return m_Version; }
    /// Made when first asked for. The reference holds until the values change.
    const ColumnSummary& GetSummary() const;

private:
    static quint64 nextVersion();

    DataColumn m_Values;
    bool m_HasChanged = true;
    quint64 m_Version = nextVersion();
    ValueRange m_Range;
    mutable std::unique_ptr<const ColumnSummary> m_Summary;
};
