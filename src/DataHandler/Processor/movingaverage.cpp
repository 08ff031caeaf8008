#include "movingaverage.h"

#include "windowsums.h"
#include <algorithm>

DataColumn MovingAverage(ConstSpan<double> values, int window)
{
    const int rows = values.size();
    const int half = std::clamp(window / 2, 0, rows);
    DataColumn averages(values);
    // Edge rows keep their own value.
    const int end = rows - half;
    if (half >= end)
        return averages;
    const WindowSums sums(DataColumn(values), 2 * half + 1);
    for (int row = half; row < end; ++row)
        averages[row] = sums.Sum(row - half, row + half + 1) / window;
    return averages;
}
