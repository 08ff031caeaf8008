#include "vedba.h"

#include <cmath>

Column Vedba(const DataSet& data, const VectorAttributes& dynamic)
{
    return DeriveColumn(data, [=](const double* row) {
        const double x = float(row[dynamic.m_X]);
        const double y = float(row[dynamic.m_Y]);
        const double z = float(row[dynamic.m_Z]);
        return std::sqrt(y * y + x * x + z * z);
    });
}
