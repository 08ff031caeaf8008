#pragma once

#include "runningsum.h"
#include <vector>

class RowWindow;

/// Data without its running mean, and the running root mean square of what is left, both over
/// windows of one width and at the windows' middles, taken some windows at a time. All sums are
/// in single precision and run from window to window.
///
/// The first window is not advanced before it is used and the value that leaves is that
/// (width - 1) / 2 before the middle: the value after the first window counts twice in it and in
/// all that follow. Kept, confidences rely on it. A sum of squares that rounding brings below 0
/// is held at 0.
class RunningNormalization
{
public:
    /// 1 <= width <= length of rows. Advance takes not more than windows windows at a time.
    RunningNormalization(RowWindow& rows, int width, int windows);

    /// Goes on to the next count windows.
    void Advance(int count);

    /// The values of these windows, count + width - 1 of them. Those that no window has for its
    /// middle keep their mean.
    const double* GetCentred() const { return m_Centred.data(); }
    /// One for each window.
    const float* GetRootMeanSquares() const { return m_Roots.data(); }

private:
    const double* readRows(int count);

    RowWindow& m_Rows;
    int m_Width;
    int m_Half;
    // Of the next Advance, and of the last one.
    int m_Start = 0;
    int m_Count = 0;
    RunningSum m_Sum;
    RunningSum m_Squares;
    std::vector<double> m_Centred;
    std::vector<float> m_Roots;
};
