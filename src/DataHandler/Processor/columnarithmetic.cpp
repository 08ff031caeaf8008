#include "columnarithmetic.h"

DataColumn BasicFunction(const DataSet& data, int first, int op, int second)
{
    const int rows = data.GetRowCount();
    const ConstSpan<double> a = data.GetColumn(first);
    const ConstSpan<double> b = data.GetColumn(second);
    switch (op) {
    case OPERATOR_SUBTRACT:
        return Difference(data, first, second);
    case OPERATOR_ADD:
        return DeriveColumn(rows, [=](int row) { return a[row] + b[row]; });
    case OPERATOR_MULTIPLY:
        return DeriveColumn(rows, [=](int row) { return a[row] * b[row]; });
    case OPERATOR_DIVIDE:
        return DeriveColumn(rows, [=](int row) { return a[row] / b[row]; });
    default:
        return DataColumn(rows, 0.0);
    }
}

DataColumn Difference(const DataSet& data, int a, int b)
{
    const ConstSpan<double> from = data.GetColumn(a);
    const ConstSpan<double> taken = data.GetColumn(b);
    return DeriveColumn(data.GetRowCount(), [=](int row) { return from[row] - taken[row]; });
}

DataColumn Threshold(const DataSet& data, int attribute, double threshold)
{
    const ConstSpan<double> values = data.GetColumn(attribute);
    return DeriveColumn(data.GetRowCount(),
                        [=](int row) { return values[row] >= threshold ? 1.0 : -1.0; });
}

DataColumn ConstantValue(int rows, double value)
{
    DataColumn column(rows, value);
    if (!column.empty())
        column[0] = 0.0;
    return column;
}
