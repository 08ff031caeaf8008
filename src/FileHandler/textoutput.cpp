#include "textoutput.h"

#include <QFileInfo>
#include <algorithm>
#include <charconv>
#include <cmath>

namespace
{

constexpr size_t blockSize = size_t(256) * 1024;
// A sign, 17 digits, zeros behind a point, an exponent.
constexpr size_t longestNumber = 32;

// Devices and pipes must not be replaced by a file.
bool isReplaceable(const QString& path)
{
    const QFileInfo info(path);
    return !info.exists() || info.isFile();
}

} // namespace

TextOutput::TextOutput(const QString& path) : m_File(path)
{
    if (isReplaceable(path))
        m_File.open(QIODevice::WriteOnly | QIODevice::Text);
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
    // The file keeps a failure in mind until it is committed.
    m_File.write(m_Buffer.data(), qint64(m_Buffer.size()));
    m_Buffer.clear();
}
