#pragma once

#include <string_view>

/// The number that a text means, exactly as QString::toDouble reads it: blanks around it, a
/// plus sign, an exponent, "inf" and "nan" are understood; 0 for a text that is no number.
/// text: UTF-8.
double NumberFromText(std::string_view text);

/// Takes a short decimal number ("-12.3456") from the front of a text: up to 15 digits, no
/// exponent, no blanks. at moves behind it; false, and nothing changed, when there is none.
inline bool TakeShortDecimal(const char*& at, const char* end, double& value)
{
    // Up to 15 digits and these powers of ten are exact, so one division rounds correctly.
    constexpr double powers[] = {1.0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const char* next = at;
    const bool negative = next != end && *next == '-';
    next += negative;
    unsigned long long digits = 0;
    const auto takeDigits = [&] {
        const char* first = next;
        for (; next != end && *next >= '0' && *next <= '9'; ++next)
            digits = digits * 10 + static_cast<unsigned long long>(*next - '0');
        return next - first;
    };
    const auto whole = takeDigits();
    const bool hasPoint = next != end && *next == '.';
    next += hasPoint;
    const auto fraction = hasPoint ? takeDigits() : 0;
    if (whole + fraction == 0 || whole + fraction > 15)
        return false;
    const double magnitude = static_cast<double>(digits) / powers[fraction];
    value = negative ? -magnitude : magnitude;
    at = next;
    return true;
}
