#pragma once

#include "derivedcolumn.h"

/// The two columns "Pitch" and "Roll" of a body from the acceleration of gravity, in degrees from
/// -90 to 90: the angle of the y axis, and then of the x axis, to the horizontal plane
/// (Johnson, Tyack 2003, IEEE Journal of Oceanic Engineering 28). Pitch reads y and Roll reads x:
/// for a body whose x axis points forward, the names are the other way round. A zero vector gives 0
/// for both.
///
/// acceleration: static acceleration in any unit; while the body accelerates by itself the angles
/// are off.
std::vector<DataColumn> PitchAndRoll(const DataSet& data, const VectorAttributes& acceleration);
