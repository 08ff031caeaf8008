#include "tilt.h"

#include "elevationangle.h"
#include "vectorclones.h"

namespace
{

SKERRYMOOR_VECTOR_CLONES
void computeAngles(const VectorColumns& axes, int rows, double* pitches, double* rolls)
{
    constexpr double pi = 3.141592653589793;
    for (int row = 0; row < rows; ++row) {
        const double x = axes.m_X[row];
        const double y = axes.m_Y[row];
        const double z = axes.m_Z[row];
        pitches[row] = ElevationAngle(y, std::sqrt(x * x + z * z)) * 180 / pi;
        rolls[row] = ElevationAngle(x, std::sqrt(y * y + z * z)) * 180 / pi;
    }
}

} // namespace

std::vector<DataColumn> PitchAndRoll(const DataSet& data, const VectorAttributes& acceleration)
{
    const int rows = data.GetRowCount();
    std::vector<DataColumn> angles;
    angles.emplace_back(rows);
    angles.emplace_back(rows);
    computeAngles(VectorColumns(data, acceleration), rows, angles[0].data(), angles[1].data());
    return angles;
}
