#pragma once

#include <algorithm>

/// value(from) + ... + value(to - 1), where value takes a row index. Added up block by block:
/// the rounding error over millions of rows stays that of some thousand additions.
template <class Value>
double SumOver(int from, int to, const Value& value)
{
    constexpr int blockRows = 4096;
    double sum = 0;
    while (from < to) {
        const int end = from + std::min(blockRows, to - from);
        double block = 0;
        for (; from < end; ++from)
            block += value(from);
        sum += block;
    }
    return sum;
}

/// The mean of value(from) to value(to - 1), not-a-number when there is none. Taken as the mean
/// distance from the first value, so that the mean of equal values is exactly that value.
template <class Value>
double MeanOver(int from, int to, const Value& value)
{
    const double origin = from < to ? value(from) : 0;
    return origin + SumOver(from, to, [&](int row) { return value(row) - origin; }) / (to - from);
}

/// The sum of the squared distances of value(from) to value(to - 1) from mean.
template <class Value>
double SquaredDeviations(int from, int to, const Value& value, double mean)
{
    return SumOver(from, to, [&](int row) {
        const double deviation = value(row) - mean;
        return deviation * deviation;
    });
}
