#pragma once

#include "blockcorrelation.h"

/// Pearson's correlation (1895) of a signal with each window of the rows, -1 to 1, handed to sink
/// in order: fast normalised cross-correlation (Lewis 1995), by the mean and the deviation of the
/// window itself. 1 <= length <= length of rows.
///
/// 0 for a window or a signal whose values are all the same. Off by less than 1e-9, which takes
/// time where a window varies a million times less than the rows around it; windows of more than
/// LongestDirect rows are off by more there.
void CorrelatePearson(RowWindow& rows, const double* signal, int length, const WindowSink& sink);

/// The longest windows that are summed up one by one where the transforms are not exact enough.
constexpr int LongestDirect = 10000;
