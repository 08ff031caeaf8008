#pragma once

#include <QString>
#include <string>
#include <string_view>

/// Cuts lines of UTF-8 text into the fields between delimiters, empty ones included.
class FieldSplitter
{
public:
    /// startColumn fields at the left of each line are left out.
    FieldSplitter(const QString& delimiter, int startColumn)
        : m_Delimiter(delimiter.toStdString()), m_StartColumn(startColumn)
    {
    }

    /// Calls take(std::string_view) for each field of a line from the start column on.
    template <typename Take>
    void Split(std::string_view line, Take&& take) const
    {
        if (m_Delimiter.empty()) {
            splitCharacters(line, take);
            return;
        }
        for (int column = 0;; ++column) {
            const size_t length = line.find(m_Delimiter);
            if (column >= m_StartColumn)
                take(line.substr(0, length));
            if (length == std::string_view::npos)
                return;
            line.remove_prefix(length + m_Delimiter.size());
        }
    }

private:
    // An empty delimiter stands between all characters and at both ends.
    template <typename Take>
    void splitCharacters(std::string_view line, Take&& take) const
    {
        const QString text = QString::fromUtf8(line.data(), int(line.size()));
        for (int column = m_StartColumn; column < text.size() + 2; ++column)
            take(text.mid(column - 1, column == 0 ? 0 : 1).toStdString());
    }

    std::string m_Delimiter;
    int m_StartColumn;
};
