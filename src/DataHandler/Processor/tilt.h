#pragma once

#include "derivedcolumn.h"

/// The two columns "Pitch" and "Roll" of a body from the acceleration of gravity, in degrees from
/// -90 to 90: the angle of the y axis, and then of the x axis, to the horizontal plane. That Pitch
/// reads y and Roll reads x is kept. A zero vector gives 0 for both.
///
/// acceleration: static acceleration in any unit; while the body accelerates by itself the angles
/// are off.
std::vector<DataColumn> PitchAndRoll(const DataSet& data, const VectorAttributes& acceleration);
