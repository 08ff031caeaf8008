#include "normalize.h"

#include "statistics.h"
#include <cmath>

DataColumn Normalize(ConstSpan<double> values)
{
    const int rows = values.size();
    const auto value = [=](int row) { return values[row]; };
    const double mean = MeanOver(0, rows, value);
    const double deviation = std::sqrt(SquaredDeviations(0, rows, value, mean) / rows);
    return DeriveColumn(rows, [=](int row) { return (values[row] - mean) / deviation; });
}

std::vector<DataColumn> NormalizeVector(const DataSet& data, const VectorAttributes& vector)
{
    const VectorColumns axes(data, vector);
    return DeriveColumns<3>(data.GetRowCount(), [=](int row) {
        const auto x = float(axes.m_X[row]);
        const auto y = float(axes.m_Y[row]);
        const auto z = float(axes.m_Z[row]);
        const auto squares = float(y * y + x * x + z * z);
        const auto length = float(std::sqrt(double(squares)));
        return std::array<double, 3>{float(x / length), float(y / length), float(z / length)};
    });
}
