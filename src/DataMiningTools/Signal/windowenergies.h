#pragma once

#include <vector>

/// For every window of one width the sum of squared distances from its own mean.
///
/// Both sums that this takes are made anew for each window, from the row that two neighbouring
/// stretches of windows meet at, to the left and to the right of it (van Herk 1992, A fast
/// algorithm for local minimum and maximum filters): all windows of a stretch hold that row, so
/// its value is taken off all others. Nothing is ever subtracted from a sum, and what lies outside
/// of a window does not touch it: where values are far from 0, as 1e6 with a spread of 1, no digit
/// is lost, and there is no running sum whose rounding would have to be made up for. The relative
/// error is below the width's square times that of one operation.
class WindowEnergies
{
public:
    /// width at least 1. Compute takes not more than windows windows at a time.
    WindowEnergies(int width, int windows);

    /// The energies of the count windows that start at values 0 to count - 1, good until the next
    /// call; values: count + width - 1 numbers. 0 for exactly those windows whose values are all
    /// the same, unless their squares are too small for a number.
    const double* Compute(const double* values, int count);

private:
    void sumUp(const double* middle, int before, int behind);
    void combine(int count, double* energies) const;

    int m_Width;
    // Of the values and of their squares, from the middle to the left and to the right.
    std::vector<double> m_SumsBefore;
    std::vector<double> m_SquaresBefore;
    std::vector<double> m_SumsBehind;
    std::vector<double> m_SquaresBehind;
    std::vector<double> m_Energies;
};
