#pragma once

#include <QtAlgorithms>
#include <QtEndian>
#include <algorithm>
#include <string_view>

/// The number that a text means, exactly as QString::toDouble reads it: blanks around it, a
/// plus sign, an exponent, "inf" and "nan" are understood; 0 for a text that is no number.
/// text: UTF-8.
double NumberFromText(std::string_view text);

/// Memory behind a text that TakeShortDecimal may look at; its content does not matter.
constexpr int ShortDecimalPadding = 8;

/// The digits at the front of a text, as far as they are among its first eight characters.
struct DigitRun {
    DigitRun(const char* at, const char* end)
    {
        // All eight at once: digits become the bytes 0 to 9, others get their high bit set.
        quint64 bytes = qFromLittleEndian<quint64>(at) ^ 0x3030303030303030ULL;
        const quint64 others = ((bytes + 0x7676767676767676ULL) | bytes) & 0x8080808080808080ULL;
        length = std::min<qptrdiff>(qCountTrailingZeroBits(others) / 8, end - at);
        if (length == 0)
            return;
        // Zeros in front make it eight digits, which then are added up in pairs.
        bytes <<= 64 - 8 * length;
        bytes = bytes * 10 + (bytes >> 8);
        constexpr quint64 evenPairs = 0x000000FF000000FFULL;
        value = qint64((((bytes & evenPairs) * (100 + (1000000ULL << 32))) +
                        (((bytes >> 16) & evenPairs) * (1 + (10000ULL << 32)))) >>
                       32);
    }

    qptrdiff length;
    qint64 value = 0;
};

/// Takes a short decimal number ("-12.3456") from the front of a text: up to seven digits before
/// and behind the point, no exponent, no blanks. at moves behind it; false, and nothing changed,
/// when there is none. ShortDecimalPadding bytes behind end must be readable.
inline bool TakeShortDecimal(const char*& at, const char* end, double& value)
{
    // Numbers of up to 15 digits and these powers are exact, so one division rounds correctly.
    static constexpr qint64 powers[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000};
    static constexpr double exactPowers[] = {1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7};
    constexpr qptrdiff mostDigits = 7;
    const bool isNegative = at != end && *at == '-';
    const char* next = at + isNegative;
    const DigitRun whole(next, end);
    next += whole.length;
    const bool hasPoint = next != end && *next == '.';
    next += hasPoint;
    const DigitRun fraction(next, hasPoint ? end : next);
    if (whole.length > mostDigits || fraction.length > mostDigits ||
        whole.length + fraction.length == 0)
        return false;
    const qint64 digits = whole.value * powers[fraction.length] + fraction.value;
    const double magnitude = double(digits) / exactPowers[fraction.length];
    // Signs come and go at random: a factor costs less than a jump that is guessed wrongly.
    static constexpr double signs[] = {1.0, -1.0};
    value = signs[isNegative] * magnitude;
    at = next + fraction.length;
    return true;
}
