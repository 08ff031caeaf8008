#include "delimitedtextreader.h"

#include "columnbuilder.h"
#include "fieldsplitter.h"
#include "numberline.h"
#include "numbertext.h"
#include "textlines.h"
#include <QIODevice>
#include <algorithm>
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

static_assert(TextLines::Padding >= NumberLine::Padding, "lines are scanned in place");

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
    qint64 lines = 0;
    if (!countLines(device, lines))
        return false;
    // No value but the last is without a byte of its own.
    ColumnBuilder rows(lines, device.size() + 1);
    const FieldSplitter splitter(m_Settings.delimiter, m_Settings.startColumn);
    const bool isByte = NumberLine::Supports(m_Settings.delimiter);
    NumberLine fields(isByte ? m_Settings.delimiter[0].toLatin1() : '\0', m_Settings.startColumn);
    std::vector<double> numbers;
    const auto split = [&](std::string_view line) {
        if (isByte) {
            fields.Read(line, numbers);
        } else {
            numbers.clear();
            splitter.Split(
                line, [&](std::string_view field) { numbers.push_back(NumberFromText(field)); });
        }
        return int(numbers.size());
    };
    const auto addRow = [&] {
        return rows.AddRow(numbers) || fail(QStringLiteral("There is no room for so many rows"));
    };
    const bool isRead = readRows(device, lines, progress, split, addRow);
    if (isRead || !progress.IsStopRequested()) {
        m_DataSet = std::make_unique<DataSet>();
        m_DataSet->TakeColumns(rows.Take());
    }
    return isRead;
}

bool DelimitedTextReader::ReadColumn(QIODevice& device, int column, QStringList& texts)
{
    m_DataSet.reset();
    texts.clear();
    qint64 lines = 0;
    if (!countLines(device, lines))
        return false;
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
    return readRows(device, lines, progress, split, addRow);
}

// Leaves the device at its start. It cannot be stopped: it is over before there is a range that
// progress could be told in.
bool DelimitedTextReader::countLines(QIODevice& device, qint64& lines)
{
    m_Error.clear();
    m_Warnings.clear();
    TextLines counted(device);
    lines = counted.CountLines();
    if (!counted.GetError().isEmpty())
        return fail(counted.GetError());
    return device.reset() || fail(QStringLiteral("Can't open file"));
}

bool DelimitedTextReader::readRows(QIODevice& device, qint64 lines, Progress& progress,
                                   const Split& split, const AddRow& addRow)
{
    progress.SetRange(0, int(std::min<qint64>(lines, std::numeric_limits<int>::max())));
    progress.SetLabelText(QStringLiteral("Initalizing File Reader"));
    progress.SetLabelText(QStringLiteral("Reading file"));

    TextLines text(device);
    std::string_view content;
    for (int i = 0; i < m_Settings.startRow && text.Next(content); ++i)
        progress.SetValue(i + 1);
    qint64 line = m_Settings.startRow;
    int width = 0;
    while (text.Next(content)) {
        if (line % progressStep == 0) {
            progress.SetValue(int(std::min(line, lines)));
            if (progress.IsStopRequested())
                return fail(QStringLiteral("Reading the file was stopped"));
        }
        ++line;
        if (isBlankLine(content))
            continue;
        const int parts = split(content);
        if (!checkWidth(parts, width, line))
            return false;
        if (parts == width && !addRow())
            return false;
    }
    return text.GetError().isEmpty() || fail(text.GetError());
}

// The first line sets the width, others that differ give a warning. False when it is of no use to
// go on.
bool DelimitedTextReader::checkWidth(int parts, int& width, qint64 line)
{
    if (width == 0)
        width = parts;
    if (width == 0)
        return fail(QStringLiteral("The start column is beyond the end of line ") +
                    QString::number(line));
    return parts == width || warn(line);
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
