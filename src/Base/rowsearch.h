#pragma once

#include "rowspan.h"
#include <algorithm>

/// The end of those rows that a condition holds for. It must hold for none behind one that it does
/// not hold for.
template <class Condition>
int EndOfHolding(const RowSpan& rows, const Condition& holds)
{
    int from = rows.m_From;
    int to = rows.m_To;
    while (from < to) {
        const int middle = from + (to - from) / 2;
        if (holds(middle))
            from = middle + 1;
        else
            to = middle;
    }
    return from;
}

/// The same, looked for from a guess on: with a good one it asks for two or three rows.
template <class Condition>
int EndOfHolding(const RowSpan& rows, int guess, const Condition& holds)
{
    int from = rows.m_From;
    int to = rows.m_To;
    int next = std::max(from, std::min(guess, to - 1));
    for (int step = 1; from < to; step *= 2) {
        const bool isHolding = holds(next);
        (isHolding ? from : to) = isHolding ? next + 1 : next;
        if (step > to - from)
            break;
        next = isHolding ? from - 1 + step : to - step;
    }
    return EndOfHolding({from, to}, holds);
}
