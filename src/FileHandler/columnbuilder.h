#pragma once

#include "datacolumn.h"
#include <vector>

/// Gathers a table row by row into columns.
class ColumnBuilder
{
public:
    /// Makes room when the first row comes: for rows rows, but not for more than values values in
    /// all. Both may be guesses.
    ColumnBuilder(qint64 rows, qint64 values) : m_ExpectedRows(rows), m_ExpectedValues(values) {}

    /// All rows have as many values as the first. False when there is no room for more rows.
    bool AddRow(const std::vector<double>& values);
    /// The columns of the rows added so far, without the room that was not needed.
    std::vector<DataColumn> Take();

private:
    static constexpr int MostRows = 1 << 30;

    void makeRoom(size_t columns);

    qint64 m_ExpectedRows;
    qint64 m_ExpectedValues;
    int m_RowCount = 0;
    std::vector<DataColumn> m_Columns;
};
