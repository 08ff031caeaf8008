#include "rotation.h"

#include <QMatrix4x4>
#include <QVector3D>

std::vector<Column> RotateVector(const DataSet& data, const VectorAttributes& vector, int pitch,
                                 int roll)
{
    return DeriveColumns<3>(data, [=](const double* row) {
        QMatrix4x4 rotation;
        rotation.rotate(float(-row[pitch]), QVector3D(1, 0, 0));
        rotation.rotate(float(-row[roll]), QVector3D(0, 1, 0));
        const auto x = float(row[vector.m_X]);
        const auto y = float(row[vector.m_Y]);
        const auto z = float(row[vector.m_Z]);
        // A vector on the left is a row: it meets the columns of the matrix.
        const QVector3D turned = QVector3D(x, y, z) * rotation;
        return std::array<double, 3>{turned.x(), turned.y(), turned.z()};
    });
}
