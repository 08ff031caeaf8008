#pragma once

#include <vector>

/// Data without its running mean, and the running root mean square of what is left, both over
/// windows of one width and at the windows' middles.
struct RunningNormalization {
    /// The data itself where no window lies around it.
    std::vector<double> m_Centred;
    /// 0 where no window lies around it.
    std::vector<float> m_RootMeanSquare;
};

/// Takes both in one pass over length values, 1 <= window <= length. All sums are in single
/// precision and run from window to window.
///
/// The first window is not advanced before it is used and the value that leaves is that
/// (window - 1) / 2 before the middle: the value after the first window counts twice in it and in
/// all that follow. Kept, confidences rely on it. A sum of squares that rounding brings below 0
/// is held at 0.
RunningNormalization NormalizeRunning(const double* data, int length, int window);
