#include "numberline.h"

#include "numbertext.h"
#include "shortdecimal.h"
#include <algorithm>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace
{

constexpr int blockBytes = 64;

static_assert(NumberLine::Padding >= blockBytes && NumberLine::Padding >= ShortDecimal::Padding);

// One bit for each byte of the block at at, set where it is that byte.
#ifdef __SSE2__
quint64 findBytes(const char* at, char byte)
{
    const __m128i wanted = _mm_set1_epi8(byte);
    quint64 found = 0;
    for (int i = 0; i < blockBytes; i += int(sizeof(__m128i))) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + i));
        found |= quint64(quint32(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, wanted)))) << i;
    }
    return found;
}
#else
quint64 findBytes(const char* at, char byte)
{
    constexpr int wordBytes = 8;
    constexpr quint64 lowBits = 0x7F7F7F7F7F7F7F7FULL;
    const quint64 pattern = 0x0101010101010101ULL * static_cast<unsigned char>(byte);
    quint64 found = 0;
    for (int i = 0; i < blockBytes; i += wordBytes) {
        const quint64 others = qFromLittleEndian<quint64>(at + i) ^ pattern;
        const quint64 matches = ~(((others & lowBits) + lowBits) | others | lowBits);
        // The product gathers the top bits of all eight bytes in its highest byte.
        found |= (((matches >> 7) * 0x0102040810204080ULL) >> 56) << i;
    }
    return found;
}
#endif

double readNumber(const char* begin, const char* end)
{
    double number = 0.0;
    if (ShortDecimal::Read(begin, end, number))
        return number;
    return NumberFromText(std::string_view(begin, size_t(end - begin)));
}

} // namespace

void NumberLine::Read(std::string_view line, std::vector<double>& numbers)
{
    findEnds(line);
    numbers.resize(m_FieldCount - std::min(m_FieldCount, m_StartColumn));
    if (numbers.empty())
        return;
    const char* const* end = m_Ends.data() + m_StartColumn;
    const char* begin = m_StartColumn == 0 ? line.data() : end[-1] + 1;
    for (double& number : numbers) {
        number = readNumber(begin, *end);
        begin = *end++ + 1;
    }
}

void NumberLine::findEnds(std::string_view line)
{
    const char* const lineEnd = line.data() + line.size();
    m_FieldCount = 0;
    for (const char* at = line.data(); at < lineEnd; at += blockBytes) {
        if (m_Ends.size() < m_FieldCount + blockBytes + 1)
            m_Ends.resize(2 * m_Ends.size() + blockBytes + 1);
        quint64 found = findBytes(at, m_Delimiter);
        if (lineEnd - at < blockBytes)
            found &= (quint64(1) << (lineEnd - at)) - 1;
        for (; found != 0; found &= found - 1)
            m_Ends[m_FieldCount++] = at + qCountTrailingZeroBits(found);
    }
    m_Ends[m_FieldCount++] = lineEnd;
}
