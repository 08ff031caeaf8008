#include "derivative.h"

Column ForwardDifferences(const DataSet& data, int attribute)
{
    Column differences = data.CopyColumn(attribute);
    if (differences.empty())
        return differences;
    for (size_t row = 0; row + 1 < differences.size(); ++row)
        differences[row] = differences[row + 1] - differences[row];
    differences.pop_back();
    return differences;
}

void AppendDerivative(DataSet& data, const Column& differences)
{
    if (data.GetRowCount() > 0)
        data.GetRow(0)->AddValue(0.0);
    AppendColumn(data, differences);
}
