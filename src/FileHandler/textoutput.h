#pragma once

#include <QSaveFile>
#include <string>
#include <string_view>

/// A UTF-8 text on its way into a file. It is written aside and takes the place of a file of that
/// name only by Commit: until then, and after any failure, an old file is as it was.
class TextOutput
{
public:
    /// Significant digits where nothing else is asked for.
    static constexpr int DefaultDigits = 6;

    /// A path that is a symbolic link stands for the file it points to.
    explicit TextOutput(const QString& path);
    TextOutput(const TextOutput&) = delete;
    TextOutput& operator=(const TextOutput&) = delete;

    /// False when there is no such folder, no right to write, or when the path is no plain file.
    bool IsOpen() const { return m_File.isOpen(); }

    TextOutput& operator<<(const QString& text);
    TextOutput& operator<<(std::string_view text);
    TextOutput& operator<<(const char* text) { return *this << std::string_view(text); }
    TextOutput& operator<<(char character) { return *this << std::string_view(&character, 1); }
    TextOutput& operator<<(qint64 number);
    TextOutput& operator<<(int number) { return *this << qint64(number); }
    /// A number would leave open how many digits it gets.
    TextOutput& operator<<(double number) = delete;

    /// The text of QString::number(number, 'g', digits), for 1 to 14 digits.
    TextOutput& Number(double number, int digits = DefaultDigits);
    /// All count numbers, each with separator in front of it.
    TextOutput& Numbers(const double* numbers, int count, char separator,
                        int digits = DefaultDigits);

    /// Gives the text up: Commit will fail.
    void Cancel() { m_File.cancelWriting(); }
    /// Puts the file in its place; false, and nothing changed, when it could not be written whole.
    bool Commit();

private:
    void flush();

    QSaveFile m_File;
    std::string m_Buffer;
};

/// Writes a file by fill(TextOutput&). False, and an old file as it was, when that failed or fill
/// gave up.
template <typename Fill>
bool WriteTextFile(const QString& path, Fill&& fill)
{
    TextOutput out(path);
    if (!out.IsOpen())
        return false;
    fill(out);
    return out.Commit();
}
