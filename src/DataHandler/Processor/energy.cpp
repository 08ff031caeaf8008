#include "energy.h"

#include "windowsums.h"
#include <algorithm>

DataColumn Energy(ConstSpan<double> values, int window)
{
    const int rows = values.size();
    const int half = std::min(window / 2, rows);
    if (half <= 0)
        return DataColumn(rows, 0.0);
    const WindowSums sums(DeriveColumn(rows, [=](int row) { return values[row] * values[row]; }),
                          2 * half);
    return DeriveColumn(rows, [&](int row) {
        return sums.Sum(std::max(row - half, 0), std::min(row + half, rows));
    });
}
