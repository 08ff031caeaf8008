#pragma once

#include "derivedcolumn.h"

/// Sums over a window that slides along a column, at the same small cost for any window length.
///
/// The column is cut into blocks of the window's length; sums are stored from each value to the end
/// of its block and from the start of the block to each value. A window reaches over two blocks at
/// most, so its sum is one addition. Nothing is ever subtracted: rounding errors stay as small as
/// those of adding up the window directly, however long the column is, and a not-a-number or an
/// infinity shows in the windows that hold it and in no other.
class WindowSums
{
public:
    /// length: values in a whole window, 1 or more.
    WindowSums(DataColumn&& values, int length);

    /// The sum of the values from up to, but without, to; from < to. That is a whole window, or
    /// one cut off by the start (from is 0) or the end (to is the size) of the column.
    double Sum(int from, int to) const;

private:
    void addUpBlock(int start, int end);

    int m_Length;
    DataColumn m_FromBlockStart;
    DataColumn m_ToBlockEnd;
};
