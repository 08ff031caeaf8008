#include "textfile.h"

#include <charconv>
#include <cmath>

namespace
{
constexpr size_t PIECE = 1 << 20;
}

TextFile::TextFile(const std::string& path) : m_File(std::fopen(path.c_str(), "wb"))
{
    m_Failed = !m_File;
    m_Text.reserve(PIECE + 4096);
}

void TextFile::separate()
{
    if (!m_LineBegins)
        m_Text += ',';
    m_LineBegins = false;
}

void TextFile::Value(double value)
{
    // Loggers write no exponents.
    if (value != 0 && std::abs(value) < 1e-4) {
        Value(value, 7);
        return;
    }
    separate();
    char digits[32];
    const auto end =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::general, 6);
    m_Text.append(digits, end.ptr);
}

void TextFile::Value(double value, int decimals)
{
    separate();
    char digits[64];
    const auto end =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, decimals);
    m_Text.append(digits, end.ptr);
}

void TextFile::Value(std::string_view text)
{
    separate();
    m_Text += text;
}

void TextFile::EndLine()
{
    m_Text += '\n';
    m_LineBegins = true;
    if (m_Text.size() > PIECE)
        flush();
}

void TextFile::flush()
{
    if (!m_Failed)
        m_Failed = std::fwrite(m_Text.data(), 1, m_Text.size(), m_File.get()) != m_Text.size();
    m_Text.clear();
}

bool TextFile::Close()
{
    flush();
    if (m_File && std::fclose(m_File.release()) != 0)
        m_Failed = true;
    return !m_Failed;
}
