#include "rotation.h"

#include <QMatrix4x4>
#include <QVector3D>

std::vector<DataColumn> RotateVector(const DataSet& data, const VectorAttributes& vector, int pitch,
                                     int roll)
{
    const VectorColumns axes(data, vector);
    const ConstSpan<double> pitches = data.GetColumn(pitch);
    const ConstSpan<double> rolls = data.GetColumn(roll);
    return DeriveColumns<3>(data.GetRowCount(), [=](int row) {
        QMatrix4x4 rotation;
        rotation.rotate(float(-pitches[row]), QVector3D(1, 0, 0));
        rotation.rotate(float(-rolls[row]), QVector3D(0, 1, 0));
        const auto x = float(axes.m_X[row]);
        const auto y = float(axes.m_Y[row]);
        const auto z = float(axes.m_Z[row]);
        // A vector on the left is a row: it meets the columns of the matrix.
        const QVector3D turned = QVector3D(x, y, z) * rotation;
        return std::array<double, 3>{turned.x(), turned.y(), turned.z()};
    });
}
