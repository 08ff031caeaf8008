#include "energy.h"

#include "windowsums.h"
#include <algorithm>

Column Energy(Column values, int window)
{
    const auto rows = int(values.size());
    const int half = std::min(window / 2, rows);
    Column energies(values.size(), 0.0);
    if (half <= 0)
        return energies;
    for (double& value : values)
        value *= value;
    const WindowSums sums(std::move(values), 2 * half);
    for (int row = 0; row < rows; ++row)
        energies[size_t(row)] = sums.Sum(std::max(row - half, 0), std::min(row + half, rows));
    return energies;
}
