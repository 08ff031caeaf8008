#pragma once

#include "alignedarray.h"
#include "runningsumpair.h"
#include <vector>

class RowWindow;

/// Data without its running mean, and the running root mean square of what is left, both over
/// windows of one width and at the windows' middles, taken some windows at a time: what is
/// precomputed for fast normalised cross-correlation (Lewis 1995), here with one sum running on
/// the results of the other. All sums are in single precision and run from window to window.
///
/// The first window is not advanced before it is used and the value that leaves is that
/// (width - 1) / 2 before the middle: the value after the first window counts twice in it and in
/// all that follow. Confidences are off by that, the more the shorter the window, and may go
/// beyond 1. A sum of squares that rounding brings below 0 is held at 0.
class RunningNormalization
{
public:
    /// 1 <= width <= length of rows. Advance takes not more than windows windows at a time.
    RunningNormalization(RowWindow& rows, int width, int windows);

    /// Goes on to the next count windows, which exist.
    void Advance(int count);

    /// The values of these windows, count + width - 1 of them, and behind them, up to windows +
    /// width - 1 values, others that exist or zeros. Aligned for a transform. Those that no
    /// window has for its middle keep their mean.
    double* GetCentred() { return m_Centred.GetData(); }
    /// One for each window.
    const float* GetRootMeanSquares() const { return m_Roots.data(); }

private:
    // The means run ahead of the squares, so that the two sums need nothing of each other.
    static constexpr int Lead = RunningSumPair::MaximumSteps;

    void readRows(int count);
    void start();
    void advance(int window, int count);
    void centre(int row, int means, int count, const float* sums);
    void dropPassedRows();

    RowWindow& m_Rows;
    int m_Width;
    int m_Half;
    // The first row that is the middle of no window any more.
    int m_MeanEnd;
    // Of the next Advance, and of the last one.
    int m_Start = 0;
    int m_Count = 0;
    // Of the mean, and of the squares.
    RunningSumPair m_Sums;
    // From row m_Start on.
    const double* m_Data = nullptr;
    AlignedArray<double> m_Centred;
    std::vector<double> m_Squares;
    std::vector<float> m_Roots;
};
