#include "groundtruithreader.h"

#include "dataset.h"
#include "recordparser.h"
#include <QLoggingCategory>
#include <QTextStream>

Q_LOGGING_CATEGORY(lcFiles, "skerrymoor.files", QtWarningMsg)

namespace
{

// Far above any list of labels; a file beyond it is something else.
constexpr qint64 largestFile = qint64(64) * 1024 * 1024;

struct Record {
    QString m_Name;
    QString m_From;
    QString m_To;
};

std::vector<Record> readRecords(const QString& text)
{
    std::vector<Record> records;
    ParseRecords(text, [&](const QStringList& fields) {
        if (fields.size() >= 3)
            records.push_back({fields[0], fields[1].trimmed(), fields[2].trimmed()});
    });
    return records;
}

// Finds all labels in one pass over the rows. The first row of a label counts.
QHash<QString, int> findRows(const DataSet& data, const std::vector<Record>& records)
{
    constexpr int none = -1;
    QHash<QString, int> rows;
    for (const Record& record : records) {
        rows.insert(record.m_From, none);
        rows.insert(record.m_To, none);
    }
    int missing = rows.size();
    for (int row = 0; row < data.GetRowCount() && missing > 0; ++row) {
        const auto found = rows.find(data.GetRowLabel(row));
        if (found == rows.end() || *found != none)
            continue;
        *found = row;
        --missing;
    }
    return rows;
}

} // namespace

bool GroundTruithReader::ReadFile()
{
    m_Collection = std::make_unique<GroundTruithBehaviorCollection>();
    m_Error.clear();
    if (!m_DataSet)
        return fail(QStringLiteral("Data set not initalized."));
    QString text;
    if (!readText(text))
        return false;
    addInstances(text);
    return true;
}

bool GroundTruithReader::fail(const QString& error)
{
    m_Error = error;
    return false;
}

bool GroundTruithReader::readText(QString& text)
{
    if (!open(QIODevice::ReadOnly))
        return fail(QStringLiteral("Unable to find data file."));
    const bool isSmall = size() <= largestFile;
    if (isSmall) {
        // A byte order mark of another Unicode encoding counts more.
        QTextStream stream(this);
        stream.setCodec("UTF-8");
        text = stream.readAll();
    }
    const bool isRead = error() == NoError;
    close();
    if (!isSmall)
        return fail(QStringLiteral("The file is too large to be a list of labels."));
    return isRead || fail(QStringLiteral("Unable to read data file."));
}

void GroundTruithReader::addInstances(const QString& text)
{
    const std::vector<Record> records = readRecords(text);
    const QHash<QString, int> rows = findRows(*m_DataSet, records);
    for (const Record& record : records) {
        const int from = rows.value(record.m_From);
        if (from >= 0)
            m_Collection->Add(record.m_Name,
                              new GroundTruithInstance(from, rows.value(record.m_To)));
        else
            qCDebug(lcFiles) << "Error -Skipping" << record.m_Name << record.m_From << record.m_To;
    }
}
