#pragma once

#include "derivedcolumn.h"

/// The average over a window centred on each row; the static part of an acceleration when the
/// window is some seconds long (Shepard et al. 2008, Aquatic Biology 4).
///
/// With h = window / 2 in whole numbers, a row gets the sum of the 2h + 1 values around it divided
/// by window. For an even window that is one value more than the divisor says, so the average of
/// equal values comes out too large by one part in window. The first and the last h rows get their
/// own value, which is every row when they meet.
///
/// values: any unit, any size; not-a-number and infinities count as in a sum of their window.
/// window: 0 divides by zero; below 0 it takes the row alone, as 0 and 1 do.
/// The time does not depend on the window.
DataColumn MovingAverage(ConstSpan<double> values, int window);
