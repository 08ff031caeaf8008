#include "columnarithmetic.h"

Column BasicFunction(const DataSet& data, int first, int op, int second)
{
    switch (op) {
    case OPERATOR_SUBTRACT:
        return Difference(data, first, second);
    case OPERATOR_ADD:
        return DeriveColumn(data, [=](const double* row) { return row[first] + row[second]; });
    case OPERATOR_MULTIPLY:
        return DeriveColumn(data, [=](const double* row) { return row[first] * row[second]; });
    case OPERATOR_DIVIDE:
        return DeriveColumn(data, [=](const double* row) { return row[first] / row[second]; });
    default:
        return Column(size_t(data.GetRowCount()), 0.0);
    }
}

Column Difference(const DataSet& data, int a, int b)
{
    return DeriveColumn(data, [=](const double* row) { return row[a] - row[b]; });
}

Column Threshold(const DataSet& data, int attribute, double threshold)
{
    return DeriveColumn(
        data, [=](const double* row) { return row[attribute] >= threshold ? 1.0 : -1.0; });
}

Column ConstantValue(int rows, double value)
{
    Column column(size_t(rows), value);
    if (!column.empty())
        column.front() = 0.0;
    return column;
}
