#include "tilt.h"

#include <cmath>

std::vector<Column> PitchAndRoll(const DataSet& data, const VectorAttributes& acceleration)
{
    constexpr double pi = 3.141592653589793;
    return DeriveColumns<2>(data, [=](const double* row) {
        const double x = row[acceleration.m_X];
        const double y = row[acceleration.m_Y];
        const double z = row[acceleration.m_Z];
        return std::array<double, 2>{std::atan2(y, std::sqrt(x * x + z * z)) * 180 / pi,
                                     std::atan2(x, std::sqrt(y * y + z * z)) * 180 / pi};
    });
}
