#pragma once

#include "constspan.h"

class RowProgress;

/// The means of blocks of window values, a block every step values as long as it starts more
/// than window values before the end. A later block overwrites an earlier one where they overlap,
/// and behind the last one its mean stays. Zeros without a block, or with a step below 1.
/// progress: takes a row for each block; where it ends the work early, the result is worth nothing.
std::vector<float> BlockMeans(ConstSpan<double> values, int window, int step,
                              RowProgress* progress = nullptr);

/// The variance of the window values from each value on; the windows stop before the last value,
/// and the variance of the last window stays to the end. Zeros without a window.
///
/// Sums are in single precision, from the front of each window. progress: takes a row for each
/// window; where it ends the work early, the result is worth nothing.
std::vector<float> LocalVariances(const std::vector<float>& values, int window,
                                  RowProgress* progress = nullptr);
