#include "windowenergies.h"

#include "vectorclones.h"
#include <algorithm>

namespace
{

/// The sums of one side of a stretch, with those of no value behind them.
struct Side {
    const double* m_Sums;
    const double* m_Squares;
};

SKERRYMOOR_VECTOR_CLONES
void combineSides(Side before, Side behind, int count, double width, double* energies)
{
    const double share = 1.0 / width;
    for (int i = 0; i < count; ++i) {
        const double sum = before.m_Sums[i] + behind.m_Sums[i];
        const double square = before.m_Squares[i] + behind.m_Squares[i];
        const double energy = square - sum * sum * share;
        energies[i] = energy > 0.0 ? energy : 0.0;
    }
}

} // namespace

WindowEnergies::WindowEnergies(int width, int windows)
    : m_Width(width), m_SumsBefore(size_t(width)), m_SquaresBefore(size_t(width)),
      m_SumsBehind(size_t(width)), m_SquaresBehind(size_t(width)), m_Energies(size_t(windows))
{
}

const double* WindowEnergies::Compute(const double* values, int count)
{
    for (int start = 0; start < count; start += m_Width) {
        // The last window of the stretch starts at its middle.
        const int windows = std::min(m_Width, count - start);
        sumUp(values + start + windows - 1, windows - 1, m_Width - 1);
        combine(windows, m_Energies.data() + start);
    }
    return m_Energies.data();
}

/// The sums of 0 to before values in front of the middle, and of 0 to behind values behind it,
/// which are not fewer; the middle itself is 0.
void WindowEnergies::sumUp(const double* middle, int before, int behind)
{
    double sums[2] = {};
    double squares[2] = {};
    const auto add = [&](int side, double value, std::vector<double>& sumList,
                         std::vector<double>& squareList, int place) {
        sums[side] += value;
        squares[side] += value * value;
        sumList[size_t(place)] = sums[side];
        squareList[size_t(place)] = squares[side];
    };
    // Both sides in one loop, so that they wait together.
    for (int i = 0; i <= before; ++i) {
        add(0, middle[-i] - *middle, m_SumsBefore, m_SquaresBefore, before - i);
        add(1, middle[i] - *middle, m_SumsBehind, m_SquaresBehind, i);
    }
    for (int i = before + 1; i <= behind; ++i)
        add(1, middle[i] - *middle, m_SumsBehind, m_SquaresBehind, i);
}

/// The energies of count windows, the last of which has nothing in front of the middle.
void WindowEnergies::combine(int count, double* energies) const
{
    const int behind = m_Width - count;
    combineSides({m_SumsBefore.data(), m_SquaresBefore.data()},
                 {m_SumsBehind.data() + behind, m_SquaresBehind.data() + behind}, count,
                 double(m_Width), energies);
}
