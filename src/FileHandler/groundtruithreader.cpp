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
    ParseRecords(text, [this](const QStringList& fields) {
        if (fields.size() < 3)
            return;
        const int from = m_DataSet->FindRowByLabel(fields[1].trimmed());
        if (from >= 0)
            m_Collection->Add(fields[0], new GroundTruithInstance(
                                             from, m_DataSet->FindRowByLabel(fields[2].trimmed())));
        else
            qCDebug(lcFiles) << "Error -Skipping" << fields;
    });
}
