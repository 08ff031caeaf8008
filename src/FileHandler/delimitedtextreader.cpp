#include "delimitedtextreader.h"

#include "fieldsplitter.h"
#include "numbertext.h"
#include "textlines.h"
#include <QIODevice>
#include <algorithm>
#include <cstring>
#include <limits>

namespace
{

constexpr int mostWarnings = 10;
constexpr int progressStep = 100;

bool isBlankLine(std::string_view line)
{
    const auto isBlank = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    const auto text = std::find_if_not(line.begin(), line.end(), isBlank);
    if (text == line.end())
        return true;
    if (static_cast<unsigned char>(*text) < 0x80)
        return false;
    return QString::fromUtf8(line.data(), int(line.size())).trimmed().isEmpty();
}

static_assert(TextLines::Padding >= ShortDecimalPadding, "lines are scanned in place");

// The fast way through a line: the number itself shows where its field ends. For delimiters of
// one byte that is no part of a short number.
class NumberScanner
{
public:
    NumberScanner(char delimiter, int startColumn)
        : m_Delimiter(delimiter), m_StartColumn(startColumn)
    {
    }

    static bool Supports(const QString& delimiter)
    {
        return delimiter.size() == 1 && delimiter[0].unicode() < 0x80 &&
               !QStringLiteral("0123456789.-").contains(delimiter);
    }

    void Scan(std::string_view line, std::vector<double>& numbers) const
    {
        const char* at = line.data();
        const char* end = at + line.size();
        for (int column = 0; column < m_StartColumn; ++column) {
            at = fieldEnd(at, end);
            if (at == end)
                return;
            ++at;
        }
        for (;; ++at) {
            numbers.push_back(take(at, end));
            if (at == end)
                return;
        }
    }

private:
    double take(const char*& at, const char* end) const
    {
        const char* begin = at;
        double number = 0.0;
        if (TakeShortDecimal(at, end, number) && (at == end || *at == m_Delimiter))
            return number;
        at = fieldEnd(begin, end);
        return NumberFromText(std::string_view(begin, size_t(at - begin)));
    }

    const char* fieldEnd(const char* at, const char* end) const
    {
        const void* found = at == end ? nullptr : std::memchr(at, m_Delimiter, size_t(end - at));
        return found ? static_cast<const char*>(found) : end;
    }

    char m_Delimiter;
    int m_StartColumn;
};

} // namespace

DelimitedTextReader::DelimitedTextReader(const DelimitedTextSettings& settings)
    : m_Settings(settings)
{
    m_Settings.startRow = std::max(m_Settings.startRow, 0);
    m_Settings.startColumn = std::max(m_Settings.startColumn, 0);
}

bool DelimitedTextReader::Read(QIODevice& device, Progress& progress)
{
    m_DataSet.reset();
    std::vector<double> numbers;
    const FieldSplitter splitter(m_Settings.delimiter, m_Settings.startColumn);
    const NumberScanner scanner(m_Settings.delimiter.isEmpty() ? '\0'
                                                               : m_Settings.delimiter[0].toLatin1(),
                                m_Settings.startColumn);
    const bool canScan = NumberScanner::Supports(m_Settings.delimiter);
    const auto split = [&](std::string_view line) {
        numbers.clear();
        if (canScan)
            scanner.Scan(line, numbers);
        else
            splitter.Split(
                line, [&](std::string_view field) { numbers.push_back(NumberFromText(field)); });
        return int(numbers.size());
    };
    std::vector<DataColumn> columns;
    const auto addRow = [&] {
        columns.resize(numbers.size());
        for (size_t i = 0; i < numbers.size(); ++i)
            columns[i].Append(numbers[i]);
        return true;
    };
    const bool isRead = readRows(device, progress, split, addRow);
    if (m_DataSet)
        m_DataSet->TakeColumns(std::move(columns));
    return isRead;
}

bool DelimitedTextReader::ReadColumn(QIODevice& device, int column, QStringList& texts)
{
    m_DataSet.reset();
    texts.clear();
    std::vector<std::string> fields;
    const FieldSplitter splitter(m_Settings.delimiter, m_Settings.startColumn);
    const auto split = [&](std::string_view line) {
        fields.clear();
        splitter.Split(line, [&](std::string_view field) { fields.emplace_back(field); });
        return int(fields.size());
    };
    const auto addRow = [&] {
        if (column < 0 || size_t(column) >= fields.size())
            return fail(QStringLiteral("There is no column ") + QString::number(column));
        texts.append(QString::fromStdString(fields[size_t(column)]));
        return true;
    };
    NoProgress progress;
    return readRows(device, progress, split, addRow);
}

bool DelimitedTextReader::readRows(QIODevice& device, Progress& progress, const Split& split,
                                   const AddRow& addRow)
{
    m_Error.clear();
    m_Warnings.clear();
    TextLines counted(device);
    const qint64 lines = counted.CountLines();
    if (!counted.GetError().isEmpty())
        return fail(counted.GetError());
    if (!device.reset())
        return fail(QStringLiteral("Can't open file"));
    progress.SetRange(0, int(std::min<qint64>(lines, std::numeric_limits<int>::max())));
    progress.SetLabelText(QStringLiteral("Initalizing File Reader"));
    progress.SetLabelText(QStringLiteral("Reading file"));

    TextLines text(device);
    std::string_view content;
    for (int i = 0; i < m_Settings.startRow && text.Next(content); ++i)
        progress.SetValue(i + 1);
    m_DataSet = std::make_unique<DataSet>();
    qint64 line = m_Settings.startRow;
    int width = 0;
    while (text.Next(content)) {
        if (line % progressStep == 0)
            progress.SetValue(int(std::min(line, lines)));
        ++line;
        if (isBlankLine(content))
            continue;
        const int parts = split(content);
        if (parts == 0 && width == 0)
            return fail(QStringLiteral("The start column is beyond the end of line ") +
                        QString::number(line));
        if (width > 0 && parts != width) {
            if (!warn(line))
                return false;
            continue;
        }
        width = parts;
        if (!addRow())
            return false;
    }
    return text.GetError().isEmpty() || fail(text.GetError());
}

bool DelimitedTextReader::fail(const QString& error)
{
    m_Error = error;
    return false;
}

// False when there have been too many warnings to go on.
bool DelimitedTextReader::warn(qint64 line)
{
    m_Warnings.append(QStringLiteral("Attribute mis-match at line ") + QString::number(line));
    if (m_Warnings.size() <= mostWarnings)
        return true;
    return fail(QStringLiteral(
        "A large number of attriubte mis-matches have been found. Please check the data is in the "
        "correct format with the same number of columns are present on each row."));
}
