#include "patternorigin.h"

#include "databasequery.h"
#include "dataset.h"
#include <QCoreApplication>
#include <QVariant>

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("PatternOrigin", text);
}

// What is not known is stored as a null.
QVariant numberOrNull(int number, int unknown)
{
    return number == unknown ? QVariant(QVariant::Int) : QVariant(number);
}

int readNumber(const QVariant& value, int unknown)
{
    return value.isNull() ? unknown : value.toInt();
}

QStringList readAttributes(int patternId)
{
    QSqlQuery query = PrepareQuery(
        "SELECT att_name FROM signal_template WHERE signal_collection_id IN (SELECT id FROM "
        "signal_template_collection WHERE pattern_id = ?) GROUP BY att_name ORDER BY min(id)");
    query.addBindValue(patternId);
    QStringList names;
    if (!RunQuery(query))
        return names;
    while (NextRow(query))
        names.append(query.value(0).toString());
    return names;
}

} // namespace

PatternOrigin MakeOrigin(const DataSet& dataSet, int from, int to)
{
    return {dataSet.m_SamplingRate, dataSet.m_SourceName, from, to};
}

bool PrepareOriginTable()
{
    // Of its own, so that other versions read the other tables as ever.
    QSqlQuery query = PrepareQuery(
        "create table if not exists pattern_origin(pattern_id integer primary key, sampling_rate "
        "integer, recording varchar, row_from integer, row_to integer, foreign key(pattern_id) "
        "references pattern(id) ON DELETE CASCADE)");
    return RunQuery(query);
}

bool StorePatternOrigin(int patternId, const PatternOrigin& origin)
{
    if (!PrepareOriginTable())
        return false;
    // A row may be left of a pattern that another program deleted without its foreign keys.
    QSqlQuery query = PrepareQuery(
        "INSERT OR REPLACE INTO pattern_origin (pattern_id, sampling_rate, recording, row_from, "
        "row_to) VALUES (:pattern_id, :sampling_rate, :recording, :row_from, :row_to)");
    query.bindValue(QStringLiteral(":pattern_id"), patternId);
    query.bindValue(QStringLiteral(":sampling_rate"), numberOrNull(origin.m_SamplingRate, 0));
    query.bindValue(QStringLiteral(":recording"), origin.m_Recording);
    query.bindValue(QStringLiteral(":row_from"), numberOrNull(origin.m_From, -1));
    query.bindValue(QStringLiteral(":row_to"), numberOrNull(origin.m_To, -1));
    return RunQuery(query);
}

PatternOrigin ReadPatternOrigin(int patternId)
{
    QSqlQuery query = PrepareQuery("SELECT * FROM pattern_origin WHERE pattern_id = ?");
    query.addBindValue(patternId);
    PatternOrigin origin;
    if (!RunQuery(query) || !NextRow(query))
        return origin;
    origin.m_SamplingRate = readNumber(query.value(QStringLiteral("sampling_rate")), 0);
    origin.m_Recording = query.value(QStringLiteral("recording")).toString();
    origin.m_From = readNumber(query.value(QStringLiteral("row_from")), -1);
    origin.m_To = readNumber(query.value(QStringLiteral("row_to")), -1);
    return origin;
}

PatternSummary ReadPatternSummary(int patternId)
{
    return {readAttributes(patternId), ReadPatternOrigin(patternId)};
}

QStringList DescribePattern(const PatternSummary& summary)
{
    const PatternOrigin& origin = summary.m_Origin;
    const QString unknown = tr("unknown");
    return {
        tr("Attributes: %1")
            .arg(summary.m_Attributes.isEmpty() ? tr("none")
                                                : summary.m_Attributes.join(QStringLiteral(", "))),
        tr("Sampling rate: %1")
            .arg(origin.m_SamplingRate > 0 ? tr("%1 Hz").arg(origin.m_SamplingRate) : unknown),
        tr("Recording: %1").arg(origin.m_Recording.isEmpty() ? unknown : origin.m_Recording),
        tr("Rows: %1")
            .arg(origin.m_From < 0 ? unknown : tr("%1 to %2").arg(origin.m_From).arg(origin.m_To))};
}

QString FindRateMismatch(const PatternOrigin& origin, const DataSet& dataSet)
{
    const int rate = dataSet.m_SamplingRate;
    if (origin.m_SamplingRate <= 0 || rate <= 0 || origin.m_SamplingRate == rate)
        return QString();
    return tr("The template was recorded at %1 Hz and this recording at %2 Hz: the same movement "
              "has another length in rows.")
        .arg(origin.m_SamplingRate)
        .arg(rate);
}

QStringList FindMismatches(const PatternSummary& summary, const DataSet& dataSet)
{
    QStringList mismatches;
    const QString rate = FindRateMismatch(summary.m_Origin, dataSet);
    if (!rate.isEmpty())
        mismatches.append(rate);
    for (const QString& name : summary.m_Attributes) {
        if (dataSet.GetAttributeIndex(name) == -1)
            mismatches.append(tr("This recording has no attribute %1.").arg(name));
    }
    return mismatches;
}
