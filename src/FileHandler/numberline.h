#pragma once

#include <QString>
#include <string_view>
#include <vector>

/// Takes the numbers from lines whose fields a single byte delimits.
///
/// First the ends of all fields are found, many bytes at a time, then the numbers are read: none
/// has to wait for the one in front of it.
class NumberLine
{
public:
    /// Memory behind a line that is looked at; its content does not matter.
    static constexpr int Padding = 64;

    /// startColumn fields at the left of each line are left out.
    NumberLine(char delimiter, int startColumn)
        : m_Delimiter(delimiter), m_StartColumn(size_t(startColumn))
    {
    }

    static bool Supports(const QString& delimiter)
    {
        return delimiter.size() == 1 && delimiter[0].unicode() < 0x80;
    }

    /// Replaces the numbers: one for each field from the start column on, 0 for a text that is no
    /// number.
    void Read(std::string_view line, std::vector<double>& numbers);

private:
    void findEnds(std::string_view line);

    char m_Delimiter;
    size_t m_StartColumn;
    // Of the fields; there is room for more than there are.
    std::vector<const char*> m_Ends = std::vector<const char*>(1);
    size_t m_FieldCount = 0;
};
