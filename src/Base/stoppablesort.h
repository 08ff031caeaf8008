#pragma once

#include "rowprogress.h"
#include <algorithm>
#include <vector>

/// A sort of millions of values that can be stopped.
///
/// So many values are sorted at once, then twice as many are joined, and so on: between two steps
/// there is time to ask whether to go on.
class StoppableSort
{
public:
    /// How many rows of progress the sort of so many values takes.
    static qint64 CountRows(size_t values)
    {
        qint64 passes = 1;
        for (size_t sorted = SortedAtOnce; sorted < values; sorted *= 2)
            ++passes;
        return passes * qint64(values);
    }

    /// Like std::sort. False, and the values in any order, when the progress asked to stop.
    template <class Value, class Less>
    static bool Run(std::vector<Value>& values, const Less& isLess, RowProgress& progress)
    {
        const size_t size = values.size();
        const auto at = [&](size_t i) { return values.begin() + qptrdiff(std::min(i, size)); };
        for (size_t from = 0; from < size; from += SortedAtOnce) {
            std::sort(at(from), at(from + SortedAtOnce), isLess);
            if (!progress.Advance(qint64(std::min(SortedAtOnce, size - from))))
                return false;
        }
        for (size_t sorted = SortedAtOnce; sorted < size; sorted *= 2) {
            for (size_t from = 0; from < size; from += 2 * sorted) {
                std::inplace_merge(at(from), at(from + sorted), at(from + 2 * sorted), isLess);
                if (!progress.Advance(qint64(std::min(2 * sorted, size - from))))
                    return false;
            }
        }
        return true;
    }

private:
    static constexpr size_t SortedAtOnce = size_t(1) << 17;
};
