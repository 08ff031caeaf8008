#pragma once

#include <vector>

/// The weights (Savitzky and Golay 1964) that give the value in the middle of 2 * half + 1 evenly
/// spaced points, of a polynomial of order 4 fitted to them by least squares; half is 2 or more. In
/// single precision, in wrap-around order in a list of size entries (at least the points): the
/// middle first, then the points to its left, outwards; those to its right from the end on.
std::vector<float> SavitzkyGolayWeights(int half, int size);

/// A signal smoothed by those weights with about window points on each side, in single precision.
/// The first and last 2 * window values stay as they are, and so does a signal not longer than
/// 4 * window, or with a window below 2.
///
/// The smoothed values are late, by window - 1 values for an even window, and smaller than they
/// should be, a constant by the factor 3809 / 4199 for a window of 8. So they do not go over
/// smoothly into the values at both ends: CentredSmoothedSignal does.
std::vector<double> SmoothedSignal(const std::vector<double>& signal, int window);
