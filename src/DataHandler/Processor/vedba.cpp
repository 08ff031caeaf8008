#include "vedba.h"

#include <cmath>

DataColumn Vedba(const DataSet& data, const VectorAttributes& dynamic)
{
    const VectorColumns axes(data, dynamic);
    return DeriveColumn(data.GetRowCount(), [=](int row) {
        const double x = float(axes.m_X[row]);
        const double y = float(axes.m_Y[row]);
        const double z = float(axes.m_Z[row]);
        return std::sqrt(y * y + x * x + z * z);
    });
}
