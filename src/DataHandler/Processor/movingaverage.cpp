#include "movingaverage.h"

#include "windowsums.h"
#include <algorithm>

Column MovingAverage(Column values, int window)
{
    const auto rows = int(values.size());
    const int half = std::clamp(window / 2, 0, rows);
    Column averages = values;
    // Edge rows keep their own value.
    const int end = rows - half;
    if (half >= end)
        return averages;
    const WindowSums sums(std::move(values), 2 * half + 1);
    for (int row = half; row < end; ++row)
        averages[size_t(row)] = sums.Sum(row - half, row + half + 1) / window;
    return averages;
}
