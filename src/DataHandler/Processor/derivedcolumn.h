#pragma once

#include "dataset.h"
#include <array>
#include <vector>

/// One value per row of a data set, in row order.
using Column = std::vector<double>;

/// Indices of the attributes that hold the three axes of a vector; any may be chosen twice.
struct VectorAttributes {
    int m_X = 0;
    int m_Y = 0;
    int m_Z = 0;
};

/// A column from the rows one by one: function(const double* values) gives the value for the row
/// that holds values. A value that a row lacks reads as not-a-number.
template <class Function>
Column DeriveColumn(const DataSet& data, const Function& function)
{
    Column column(size_t(data.GetRowCount()));
    for (size_t row = 0; row < column.size(); ++row)
        column[row] = function(data.GetRow(int(row))->GetValues());
    return column;
}

/// The same for several columns at once: function gives a std::array with one value for each.
template <size_t Count, class Function>
std::vector<Column> DeriveColumns(const DataSet& data, const Function& function)
{
    const auto rows = size_t(data.GetRowCount());
    std::vector<Column> columns(Count, Column(rows));
    for (size_t row = 0; row < rows; ++row) {
        const std::array<double, Count> values = function(data.GetRow(int(row))->GetValues());
        for (size_t i = 0; i < Count; ++i)
            columns[i][row] = values[i];
    }
    return columns;
}

/// Appends one value of the column to every row. The attribute has been added before.
void AppendColumn(DataSet& data, const Column& column);
/// Appends one value of each column, in their order, to every row.
void AppendColumns(DataSet& data, const std::vector<Column>& columns);
