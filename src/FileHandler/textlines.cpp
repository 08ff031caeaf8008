#include "textlines.h"

#include <QIODevice>
#include <QTextCodec>
#include <algorithm>
#include <cstring>

namespace
{

constexpr size_t blockSize = size_t(256) * 1024;
// No recording has such lines; a file of that kind is something else.
constexpr size_t longestLine = size_t(64) * 1024 * 1024;
constexpr int utf8Mib = 106;

bool isAscii(const char* begin, const char* end)
{
    unsigned char all = 0;
    for (; begin != end; ++begin)
        all = static_cast<unsigned char>(all | static_cast<unsigned char>(*begin));
    return all < 0x80;
}

// In runs short enough for sums of one byte, which the compiler adds up side by side.
qint64 countLineFeeds(const char* begin, const char* end)
{
    qint64 count = 0;
    while (begin != end) {
        const char* stop = begin + std::min<qptrdiff>(end - begin, 255);
        unsigned char run = 0;
        for (; begin != stop; ++begin)
            run = static_cast<unsigned char>(run + (*begin == '\n'));
        count += run;
    }
    return count;
}

const char* findByte(const char* begin, const char* end, char byte)
{
    const void* found = begin == end ? nullptr : std::memchr(begin, byte, size_t(end - begin));
    return found ? static_cast<const char*>(found) : end;
}

// Moves the text together; its new end. Mostly there is but one, at the end.
char* withoutCarriageReturns(char* begin, char* end)
{
    return std::remove(begin + (findByte(begin, end, '\r') - begin), end, '\r');
}

// Where a text ends when a UTF-8 character that lacks its last bytes is left out.
const char* completeEnd(const char* begin, const char* end)
{
    const char* lead = end;
    const auto isContinuation = [](char c) { return (c & 0xC0) == 0x80; };
    while (lead != begin && end - lead < 3 && isContinuation(lead[-1]))
        --lead;
    if (lead == begin)
        return end;
    const auto first = static_cast<unsigned char>(*--lead);
    const int length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC2 ? 2 : 1;
    return first <= 0xF4 && end - lead < length ? lead : end;
}

} // namespace

TextLines::TextLines(QIODevice& device)
    : m_Device(device), m_WasTextMode(device.isTextModeEnabled()), m_Buffer(2 * blockSize)
{
    // Carriage returns are dropped here, faster than the device does it.
    m_Device.setTextModeEnabled(false);
}

TextLines::~TextLines()
{
    m_Device.setTextModeEnabled(m_WasTextMode);
}

bool TextLines::Next(std::string_view& line)
{
    size_t scanned = m_Begin;
    const char* lineEnd = nullptr;
    for (;;) {
        const char* end = m_Buffer.data() + m_End;
        lineEnd = findByte(m_Buffer.data() + scanned, end, '\n');
        if (lineEnd != end)
            break;
        const size_t length = m_End - m_Begin;
        if (!fill()) {
            if (m_Begin == m_End || !m_Error.isEmpty())
                return false;
            lineEnd = completeEnd(m_Buffer.data() + m_Begin, m_Buffer.data() + m_End);
            m_End = size_t(lineEnd - m_Buffer.data());
            break;
        }
        scanned = m_Begin + length;
    }
    char* begin = m_Buffer.data() + m_Begin;
    const auto length = size_t(lineEnd - begin);
    m_Begin = std::min(m_Begin + length + 1, m_End);
    char* end = begin + length;
    if (m_HasCarriageReturns)
        end = withoutCarriageReturns(begin, end);
    line = std::string_view(begin, size_t(end - begin));
    return true;
}

qint64 TextLines::CountLines()
{
    qint64 lines = 0;
    bool isInsideLine = false;
    while (m_Begin != m_End || fill()) {
        const char* begin = m_Buffer.data() + m_Begin;
        const char* end = m_Buffer.data() + m_End;
        lines += countLineFeeds(begin, end);
        isInsideLine = end[-1] != '\n';
        m_Begin = m_End;
    }
    return lines + isInsideLine;
}

// Appends text to the buffer; false at the end and after a failure.
bool TextLines::fill()
{
    if (m_End - m_Begin > longestLine) {
        m_Error = QStringLiteral("A line is too long to be a row of values");
        return false;
    }
    if (m_Begin != 0)
        std::copy(m_Buffer.begin() + qptrdiff(m_Begin), m_Buffer.begin() + qptrdiff(m_End),
                  m_Buffer.begin());
    m_End -= m_Begin;
    m_Begin = 0;
    const size_t start = m_End;
    while (m_End == start) {
        if (m_Buffer.size() < m_End + blockSize + Padding)
            m_Buffer.resize(2 * m_Buffer.size());
        if (readBlock() <= 0)
            return false;
        if (!m_Started)
            detectEncoding();
        if (m_Codec)
            decodeBlock(start);
    }
    const char* end = m_Buffer.data() + m_End;
    if (!m_HasCarriageReturns)
        m_HasCarriageReturns = findByte(m_Buffer.data() + start, end, '\r') != end;
    return true;
}

// Adds raw bytes to the buffer. A read that fails at once keeps its reason.
qint64 TextLines::readBlock()
{
    const qint64 count = m_Device.read(m_Buffer.data() + m_End, qint64(blockSize));
    if (count > 0)
        m_End += size_t(count);
    else if (count < 0 && !m_Device.atEnd())
        m_Error = QStringLiteral("The file can't be read: ") + m_Device.errorString();
    return count;
}

void TextLines::detectEncoding()
{
    m_Started = true;
    while (m_End < 4 && readBlock() > 0) {
    }
    const auto head = QByteArray::fromRawData(m_Buffer.data(), int(std::min<size_t>(m_End, 4)));
    m_Codec = QTextCodec::codecForUtfText(head, nullptr);
    m_IsWide = m_Codec && m_Codec->mibEnum() != utf8Mib;
    if (!m_Codec)
        m_Codec = QTextCodec::codecForLocale();
    if (m_Codec->mibEnum() == utf8Mib) {
        m_Codec = nullptr;
        if (head.startsWith("\xEF\xBB\xBF"))
            m_Begin = 3;
        return;
    }
    m_Decoder.reset(m_Codec->makeDecoder());
}

// Turns the bytes from start on into UTF-8.
void TextLines::decodeBlock(size_t start)
{
    const char* begin = m_Buffer.data() + start;
    const char* end = m_Buffer.data() + m_End;
    if (!m_IsWide && !m_EndsInsideCharacter && isAscii(begin, end))
        return;
    m_EndsInsideCharacter = static_cast<unsigned char>(end[-1]) >= 0x80;
    const QByteArray text = m_Decoder->toUnicode(begin, int(end - begin)).toUtf8();
    m_Buffer.resize(std::max(m_Buffer.size(), start + size_t(text.size()) + Padding));
    std::copy(text.begin(), text.end(), m_Buffer.begin() + qptrdiff(start));
    m_End = start + size_t(text.size());
}
