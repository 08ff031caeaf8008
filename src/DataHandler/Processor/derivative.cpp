#include "derivative.h"

#include <algorithm>

DataColumn ForwardDifferences(const DataSet& data, int attribute)
{
    const ConstSpan<double> values = data.GetColumn(attribute);
    return DeriveColumn(std::max(values.size() - 1, 0),
                        [=](int row) { return values[row + 1] - values[row]; });
}

void AppendDerivative(DataSet& data, DataColumn&& differences)
{
    if (data.GetRowCount() > 0)
        data.GetRow(0)->AddValue(0.0);
    data.AppendValues(std::move(differences));
}
