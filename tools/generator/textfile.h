#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

/// A text file that is written in large pieces, line by line and value by value.
class TextFile
{
public:
    explicit TextFile(const std::string& path);

    /// The text as it stands, without a separator.
    void Text(std::string_view text) { m_Text += text; }
    /// One value with a separator before it, unless it is the first of its line: in six
    /// significant digits, or with a fixed number of decimals.
    void Value(double value);
    void Value(double value, int decimals);
    void Value(std::string_view text);
    void EndLine();
    /// Writes what is left; false when anything could not be written.
    bool Close();

private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    void separate();
    void flush();

    std::unique_ptr<std::FILE, Closer> m_File;
    std::string m_Text;
    bool m_LineBegins = true;
    bool m_Failed = false;
};
