#pragma once

#include <QtAlgorithms>
#include <QtEndian>

/// Reads plain decimal numbers ("-12.3456") of up to fifteen digits, at most seven of them in front
/// of the point: what recordings are made of.
///
/// The digits are taken eight at a time. They make a whole number below 10^15, and that and the
/// power of ten it is divided by are exact in double, so the one division gives the double that is
/// nearest to the text (after Clinger 1990, "How to read floating point numbers accurately").
class ShortDecimal
{
public:
    /// Memory behind a text that Read looks at; its content does not matter.
    static constexpr int Padding = 18;

    /// False, and nothing changed, when the text is no such number. No blanks, no plus sign, no
    /// exponent.
    static bool Read(const char* begin, const char* end, double& value)
    {
        const bool isNegative = *begin == '-';
        const char* first = begin + isNegative;
        const qptrdiff length = end - first;
        // The digits side by side: those behind the point move up.
        quint64 digits = load(first);
        const int point = findPoint(digits);
        const bool hasPoint = point < length;
        if (hasPoint && point == wordBytes)
            return false;
        if (hasPoint) {
            const quint64 fraction = ~quint64(0) << (8 * point);
            digits = (digits & ~fraction) | (load(first + 1) & fraction);
        }
        const qptrdiff count = length - hasPoint;
        quint64 number = 0;
        if (!readDigits(digits, first + wordBytes + hasPoint, count, number))
            return false;
        const double power = exactPowers[hasPoint ? count - point : 0];
        // Signs come and go at random: a factor costs less than a jump that is guessed wrongly.
        static constexpr double signs[] = {1.0, -1.0};
        value = signs[isNegative] * (double(qint64(number)) / power);
        return true;
    }

private:
    static constexpr int wordBytes = 8;
    static constexpr int mostDigits = 15;
    static constexpr double exactPowers[] = {1.0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                             1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

    static quint64 load(const char* at) { return qFromLittleEndian<quint64>(at); }

    // Its place among the eight bytes, or 8.
    static int findPoint(quint64 bytes)
    {
        const quint64 others = bytes ^ 0x2E2E2E2E2E2E2E2EULL;
        const quint64 points = (others - 0x0101010101010101ULL) & ~others & 0x8080808080808080ULL;
        return int(qCountTrailingZeroBits(points)) / 8;
    }

    // first: the first eight of count digits; next: where the others stand.
    static bool readDigits(quint64 first, const char* next, qptrdiff count, quint64& number)
    {
        static constexpr quint64 powers[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000};
        if (count < 1 || count > mostDigits)
            return false;
        if (count <= wordBytes)
            return readWord(first, count, number);
        quint64 rest = 0;
        if (!readWord(first, wordBytes, number) || !readWord(load(next), count - wordBytes, rest))
            return false;
        number = number * powers[count - wordBytes] + rest;
        return true;
    }

    // The first count bytes of a word, all at once; false when they are not all digits.
    static bool readWord(quint64 bytes, qptrdiff count, quint64& number)
    {
        // Digits become the bytes 0 to 9; zeros in front make them eight.
        quint64 digits = (bytes ^ 0x3030303030303030ULL) << (8 * (wordBytes - count));
        if ((((digits + 0x7676767676767676ULL) | digits) & 0x8080808080808080ULL) != 0)
            return false;
        // Added up in pairs, pairs of pairs, and halves.
        digits = digits * 10 + (digits >> 8);
        constexpr quint64 evenPairs = 0x000000FF000000FFULL;
        number = (((digits & evenPairs) * (100 + (1000000ULL << 32))) +
                  (((digits >> 16) & evenPairs) * (1 + (10000ULL << 32)))) >>
                 32;
        return true;
    }
};
