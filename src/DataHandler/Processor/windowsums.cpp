#include "windowsums.h"

#include <algorithm>

WindowSums::WindowSums(DataColumn&& values, int length)
    : m_Length(length), m_FromBlockStart(std::move(values)),
      m_ToBlockEnd(ConstSpan<double>(m_FromBlockStart))
{
    const int size = m_FromBlockStart.size();
    for (int start = 0; start < size; start += std::min(length, size - start))
        addUpBlock(start, start + std::min(length, size - start));
}

void WindowSums::addUpBlock(int start, int end)
{
    // Both ways in one loop: neither has to wait for the other's additions.
    double* forward = m_FromBlockStart.data();
    double* backward = m_ToBlockEnd.data();
    double fromStart = forward[start];
    double toEnd = backward[end - 1];
    for (int up = start + 1, down = end - 1; up < end; ++up, --down) {
        fromStart += forward[up];
        forward[up] = fromStart;
        toEnd += backward[down - 1];
        backward[down - 1] = toEnd;
    }
}

double WindowSums::Sum(int from, int to) const
{
    const double upToEnd = m_FromBlockStart[to - 1];
    if (from % m_Length == 0)
        return upToEnd;
    const double fromStart = m_ToBlockEnd[from];
    return from / m_Length == (to - 1) / m_Length ? fromStart : fromStart + upToEnd;
}
