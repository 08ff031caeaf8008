#include "tilt.h"

#include <cmath>

std::vector<DataColumn> PitchAndRoll(const DataSet& data, const VectorAttributes& acceleration)
{
    constexpr double pi = 3.141592653589793;
    const VectorColumns axes(data, acceleration);
    return DeriveColumns<2>(data.GetRowCount(), [=](int row) {
        const double x = axes.m_X[row];
        const double y = axes.m_Y[row];
        const double z = axes.m_Z[row];
        return std::array<double, 2>{std::atan2(y, std::sqrt(x * x + z * z)) * 180 / pi,
                                     std::atan2(x, std::sqrt(y * y + z * z)) * 180 / pi};
    });
}
