#pragma once

#include "constspan.h"

/// The rows of an attribute as an array without gaps, taken a part at a time. Values that are no
/// finite numbers are bridged by the last one before, those in front by the first behind: running
/// sums would not get rid of them. Only parts with gaps are copied.
class RowWindow
{
public:
    explicit RowWindow(ConstSpan<double> rows);

    int GetLength() const { return m_Rows.size(); }
    /// The values of rows from to to - 1; neither lies before that of the call before. Good until
    /// the next call.
    const double* Get(int from, int to);

private:
    void passRows(int from);

    ConstSpan<double> m_Rows;
    // The part asked for last.
    int m_From = 0;
    int m_To = 0;
    // No gap lies from here to m_To.
    int m_GapEnd = 0;
    // The last one before m_From, or the first of all.
    double m_NumberBefore = 0.0;
    std::vector<double> m_Bridged;
};
