#include "normalize.h"

#include "statistics.h"
#include <cmath>

Column Normalize(Column values)
{
    const auto rows = int(values.size());
    const auto value = [&](int row) { return values[size_t(row)]; };
    const double mean = MeanOver(0, rows, value);
    const double deviation = std::sqrt(SquaredDeviations(0, rows, value, mean) / rows);
    for (double& each : values)
        each = (each - mean) / deviation;
    return values;
}

std::vector<Column> NormalizeVector(const DataSet& data, const VectorAttributes& vector)
{
    return DeriveColumns<3>(data, [=](const double* row) {
        const auto x = float(row[vector.m_X]);
        const auto y = float(row[vector.m_Y]);
        const auto z = float(row[vector.m_Z]);
        const auto squares = float(y * y + x * x + z * z);
        const auto length = float(std::sqrt(double(squares)));
        return std::array<double, 3>{float(x / length), float(y / length), float(z / length)};
    });
}
