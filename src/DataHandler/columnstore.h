#pragma once

#include "rowlabels.h"
#include "storedcolumn.h"
#include "valuecounts.h"
#include <limits>
#include <vector>

/// The values of a table, one array per column, and the labels of its rows.
///
/// A row holds its values in the first columns, without a gap. Rows may hold different numbers of
/// values: what a row lacks is stored, and reads, as not-a-number. Rows and columns count from 0;
/// row numbers are not checked.
class ColumnStore
{
public:
    static constexpr double Missing = std::numeric_limits<double>::quiet_NaN();

    int GetRowCount() const { return m_Counts.GetRowCount(); }
    int GetColumnCount() const { return int(m_Columns.size()); }
    bool HasColumn(int column) const { return size_t(column) < m_Columns.size(); }
    /// No bounds check.
    const StoredColumn& GetColumn(int column) const { return m_Columns[size_t(column)]; }
    StoredColumn& GetColumn(int column) { return m_Columns[size_t(column)]; }

    double GetValue(int row, int column) const
    {
        return HasColumn(column) ? GetColumn(column).GetValue(row) : Missing;
    }
    int GetValueCount(int row) const { return m_Counts.GetCount(row); }
    /// True when all rows hold equally many values.
    bool IsEven() const { return m_Counts.AreEqual(); }
    RowLabels& GetLabels() { return m_Labels; }
    const RowLabels& GetLabels() const { return m_Labels; }

    // One row. A value that the row does not hold is neither set nor removed.
    void SetValue(int row, int column, double value);
    void AddValue(int row, double value);
    void RemoveValue(int row, int column);
    void SetValues(int row, ConstSpan<double> values);
    void AddRow(ConstSpan<double> values);

    /// Replaces everything: one row per value of the columns, which are equally long.
    void TakeColumns(std::vector<DataColumn>&& columns);
    /// Makes columns of missing values until there are that many.
    void Widen(int columns);
    /// Appends one value to each row, from the first row on; values may end before the rows do.
    void AppendValues(DataColumn&& values);
    /// Sets a value in all rows that hold it. values: one for each row.
    void ReplaceValues(int column, DataColumn&& values);
    /// Removes a value from all rows that hold it.
    void RemoveColumn(int column);

private:
    void copyRows(int column, const RowSpan& rows, ConstSpan<double> values);

    std::vector<StoredColumn> m_Columns;
    ValueCounts m_Counts;
    RowLabels m_Labels;
};
