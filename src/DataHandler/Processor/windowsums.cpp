#include "windowsums.h"

#include <algorithm>

WindowSums::WindowSums(Column values, int length)
    : m_Length(length), m_FromBlockStart(std::move(values)), m_ToBlockEnd(m_FromBlockStart)
{
    const size_t size = m_FromBlockStart.size();
    const auto blockLength = size_t(length);
    for (size_t start = 0; start < size; start += blockLength) {
        const size_t end = start + std::min(blockLength, size - start);
        for (size_t i = start + 1; i < end; ++i)
            m_FromBlockStart[i] += m_FromBlockStart[i - 1];
        for (size_t i = end - 1; i > start; --i)
            m_ToBlockEnd[i - 1] += m_ToBlockEnd[i];
    }
}

double WindowSums::Sum(int from, int to) const
{
    const double upToEnd = m_FromBlockStart[size_t(to - 1)];
    if (from % m_Length == 0)
        return upToEnd;
    const double fromStart = m_ToBlockEnd[size_t(from)];
    return from / m_Length == (to - 1) / m_Length ? fromStart : fromStart + upToEnd;
}
