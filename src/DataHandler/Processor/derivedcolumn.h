#pragma once

#include "dataset.h"
#include <array>
#include <vector>

/// Indices of the attributes that hold the three axes of a vector; any may be chosen twice.
struct VectorAttributes {
    int m_X = 0;
    int m_Y = 0;
    int m_Z = 0;
};

/// The values of these attributes.
struct VectorColumns {
    VectorColumns(const DataSet& data, const VectorAttributes& vector)
        : m_X(data.GetColumn(vector.m_X)), m_Y(data.GetColumn(vector.m_Y)),
          m_Z(data.GetColumn(vector.m_Z))
    {
    }

    ConstSpan<double> m_X;
    ConstSpan<double> m_Y;
    ConstSpan<double> m_Z;
};

/// A column from the rows one by one: function(row) gives the value for the row.
template <class Function>
DataColumn DeriveColumn(int rows, const Function& function)
{
    DataColumn column(rows);
    double* values = column.data();
    for (int row = 0; row < rows; ++row)
        values[row] = function(row);
    return column;
}

/// The same for several columns at once: function gives a std::array with one value for each.
template <size_t Count, class Function>
std::vector<DataColumn> DeriveColumns(int rows, const Function& function)
{
    std::vector<DataColumn> columns;
    std::array<double*, Count> values;
    for (size_t i = 0; i < Count; ++i)
        values[i] = columns.emplace_back(rows).data();
    for (int row = 0; row < rows; ++row) {
        const std::array<double, Count> derived = function(row);
        for (size_t i = 0; i < Count; ++i)
            values[i][row] = derived[i];
    }
    return columns;
}
