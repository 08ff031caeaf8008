#pragma once

#include "derivedcolumn.h"

/// The signal energy in a window around each row: the sum of the squared values.
///
/// With h = window / 2 in whole numbers, the window of row i is i - h up to, but without, i + h,
/// cut off at both ends of the column. The sum is divided by nothing.
///
/// values: any unit, the result has its square. window: 0, 1 and less give 0 in every row.
/// The time does not depend on the window.
DataColumn Energy(ConstSpan<double> values, int window);
