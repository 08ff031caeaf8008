#include "numbertext.h"

#include <QString>
#include <charconv>

namespace
{

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// A digit, or a point and a digit: from_chars would also take names of infinity that
// QString::toDouble does not know.
bool startsWithDigit(std::string_view text)
{
    if (!text.empty() && text.front() == '.')
        text.remove_prefix(1);
    return !text.empty() && isDigit(text.front());
}

std::string_view withoutBlanks(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace

double NumberFromText(std::string_view text)
{
    std::string_view number = withoutBlanks(text);
    if (number.empty())
        return 0.0;
    const bool negative = number.front() == '-';
    if (negative || number.front() == '+')
        number.remove_prefix(1);
    if (startsWithDigit(number)) {
        double value = 0.0;
        const char* end = number.data() + number.size();
        const auto [stop, error] = std::from_chars(number.data(), end, value);
        if (stop == end && error == std::errc())
            return negative ? -value : value;
    }
    return QString::fromUtf8(text.data(), int(text.size())).toDouble();
}
