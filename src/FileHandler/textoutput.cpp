#include "textoutput.h"

#include <QFileInfo>
#include <algorithm>
#include <charconv>
#include <cmath>

namespace
{

constexpr size_t blockSize = size_t(256) * 1024;
// A sign, 17 digits, a point, an exponent.
constexpr size_t longestNumber = 32;

// Devices and pipes must not be replaced by a file, and a file that may not be written stays.
bool isReplaceable(const QString& path)
{
    const QFileInfo info(path);
    return !info.exists() || (info.isFile() && QFile(path).open(QIODevice::ReadWrite));
}

// Whether the text of a number may end exactly between two texts of that many digits. Then it has
// one digit more, a 5.
bool mayLieBetween(double number, int digits)
{
    // With up to 15 digits in all, no such number has more than 22 binary places.
    constexpr double binaryPlaces = 1 << 22;
    const double scaled = number * binaryPlaces;
    if (scaled != std::trunc(scaled))
        return false;
    char text[longestNumber];
    char* end =
        std::to_chars(text, text + longestNumber, number, std::chars_format::scientific).ptr;
    char* exponent = std::find(&text[0], end, 'e');
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return exponent[-1] == '5' && std::count_if(&text[0], exponent, isDigit) == digits + 1;
}

} // namespace

TextOutput::TextOutput(const QString& path) : m_File(path)
{
    if (isReplaceable(path))
        m_File.open(QIODevice::WriteOnly | QIODevice::Text | QIODevice::Unbuffered);
    m_Buffer.reserve(blockSize + longestNumber);
}

TextOutput& TextOutput::operator<<(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    return *this << std::string_view(bytes.constData(), size_t(bytes.size()));
}

TextOutput& TextOutput::operator<<(std::string_view text)
{
    m_Buffer += text;
    if (m_Buffer.size() >= blockSize)
        flush();
    return *this;
}

TextOutput& TextOutput::operator<<(qint64 number)
{
    char text[longestNumber];
    const char* end = std::to_chars(text, text + longestNumber, number).ptr;
    return *this << std::string_view(text, size_t(end - text));
}

TextOutput& TextOutput::Number(double number, int digits)
{
    // Neither not-a-number nor zero has a sign here.
    if (std::isnan(number))
        return *this << "nan";
    if (number == 0)
        return *this << '0';
    // Ties are rounded away from zero, which std::to_chars does not do.
    if (mayLieBetween(number, digits))
        return *this << QByteArray::number(number, 'g', digits).constData();
    char text[longestNumber];
    const char* end =
        std::to_chars(text, text + longestNumber, number, std::chars_format::general, digits).ptr;
    return *this << std::string_view(text, size_t(end - text));
}

TextOutput& TextOutput::Numbers(const double* numbers, int count, char separator, int digits)
{
    std::for_each(numbers, numbers + count,
                  [&](double number) { (*this << separator).Number(number, digits); });
    return *this;
}

bool TextOutput::Commit()
{
    flush();
    return m_File.commit();
}

void TextOutput::flush()
{
    // A disk that fills up takes the first part of a block without complaint.
    if (m_File.write(m_Buffer.data(), qint64(m_Buffer.size())) != qint64(m_Buffer.size()))
        Cancel();
    m_Buffer.clear();
}
