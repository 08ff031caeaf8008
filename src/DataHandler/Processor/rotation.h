#pragma once

#include "derivedcolumn.h"

/// The three columns X, Y, Z of the vector turned in each row by the row's angles, computed in
/// single precision: the vector as a row is multiplied by a rotation of minus pitch about the x
/// axis and that by one of minus roll about the y axis.
///
/// vector: any unit, lengths do not change. pitch, roll: attributes in degrees, of any size.
std::vector<DataColumn> RotateVector(const DataSet& data, const VectorAttributes& vector, int pitch,
                                     int roll);
