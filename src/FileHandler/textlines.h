#pragma once

#include <QString>
#include <memory>
#include <string_view>
#include <vector>

class QIODevice;
class QTextCodec;
class QTextDecoder;

/// The lines of a text, as UTF-8, read block by block: the memory it takes goes by the longest
/// line. Lines end at a line feed; carriage returns are left out wherever they stand. A byte
/// order mark chooses UTF-8, UTF-16 or UTF-32 and is skipped; without one the text is in the
/// locale's encoding.
class TextLines
{
public:
    /// Memory that can be read behind each line.
    static constexpr int Padding = 64;

    /// Reads device from its present position on; it stays open and is not owned.
    explicit TextLines(QIODevice& device);
    ~TextLines();
    TextLines(const TextLines&) = delete;
    TextLines& operator=(const TextLines&) = delete;

    /// The next line, valid until the next call. False at the end and after a failure.
    bool Next(std::string_view& line);
    /// Reads to the end and counts the lines.
    qint64 CountLines();
    /// Why reading ended before the end of the text; empty when it did not.
    QString GetError() const { return m_Error; }

private:
    bool fill();
    qint64 readBlock();
    void detectEncoding();
    void decodeBlock(size_t start);

    QIODevice& m_Device;
    bool m_WasTextMode;
    // Null for UTF-8, which passes through as it is.
    QTextCodec* m_Codec = nullptr;
    std::unique_ptr<QTextDecoder> m_Decoder;
    bool m_IsWide = false;
    bool m_EndsInsideCharacter = false;
    bool m_HasCarriageReturns = false;
    bool m_Started = false;
    std::vector<char> m_Buffer;
    size_t m_Begin = 0;
    size_t m_End = 0;
    QString m_Error;
};
