#include "signaltemplatedataobject.h"

#include "centredsmoothing.h"
#include "databasequery.h"
#include "dataset.h"
#include "signalresampling.h"
#include "signalsmoothing.h"
#include <QDataStream>
#include <QVariant>
#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace
{

// The values of a blob; as many as it has when it is shorter than the length beside it.
std::vector<double> readValues(const QByteArray& blob, int length)
{
    const int held = blob.size() / int(sizeof(double));
    std::vector<double> values(size_t(std::clamp(length, 0, held)));
    QDataStream stream(blob);
    for (double& value : values)
        stream >> value;
    return values;
}

// The database keeps NaN as a null.
double readNumber(const QVariant& value)
{
    return value.isNull() ? std::numeric_limits<double>::quiet_NaN() : value.toDouble();
}

} // namespace

SignalTemplateDataObject* SignalTemplateDataObject::fromRow(const QSqlQuery& row)
{
    auto* signal = new SignalTemplateDataObject;
    signal->m_Id = row.value(QStringLiteral("id")).toInt();
    signal->m_CollectionId = row.value(QStringLiteral("signal_collection_id")).toInt();
    signal->m_Signal = readValues(row.value(QStringLiteral("signal")).toByteArray(),
                                  row.value(QStringLiteral("signal_length")).toInt());
    signal->m_Mean = readNumber(row.value(QStringLiteral("signal_mean")));
    signal->m_Sd = readNumber(row.value(QStringLiteral("signal_sd")));
    signal->m_AttName = row.value(QStringLiteral("att_name")).toString();
    return signal;
}

SignalTemplateDataObject* SignalTemplateDataObject::GetSignal(int id)
{
    QSqlQuery query = PrepareQuery("SELECT * FROM signal_template WHERE id = ?");
    query.addBindValue(id);
    return RunQuery(query) && NextRow(query) ? fromRow(query) : nullptr;
}

QList<SignalTemplateDataObject*> SignalTemplateDataObject::GetSignalsByCollectionID(int id)
{
    QList<SignalTemplateDataObject*> found;
    QSqlQuery query = PrepareQuery("SELECT * FROM signal_template WHERE signal_collection_id = ?");
    query.addBindValue(id);
    if (!RunQuery(query))
        return found;
    while (NextRow(query))
        found.append(fromRow(query));
    return found;
}

bool SignalTemplateDataObject::DeleteSignal(int id)
{
    return RunForId("DELETE FROM signal_template WHERE id = :id", id);
}

int SignalTemplateDataObject::InsertSignal()
{
    QByteArray blob;
    QDataStream stream(&blob, QIODevice::WriteOnly);
    for (const double value : m_Signal)
        stream << value;
    QSqlQuery query = PrepareQuery(
        "INSERT INTO signal_template (id, signal_collection_id, signal, signal_length, "
        "signal_mean, signal_sd, att_name) VALUES (:id, :signal_collection_id, :signal, "
        ":signal_length, :signal_mean, :signal_sd, :att_name)");
    query.bindValue(QStringLiteral(":signal_collection_id"), m_CollectionId);
    query.bindValue(QStringLiteral(":signal"), blob);
    query.bindValue(QStringLiteral(":signal_length"), GetLength());
    query.bindValue(QStringLiteral(":signal_mean"), m_Mean);
    query.bindValue(QStringLiteral(":signal_sd"), m_Sd);
    query.bindValue(QStringLiteral(":att_name"), m_AttName);
    return m_Id = RunInsert(query);
}

bool SignalTemplateDataObject::SetSignal(DataSet* dataSet, int attribute, int start, int end)
{
    if (attribute < 0 || attribute >= dataSet->GetAttributeCount() || end - start < 1)
        return false;
    if (start < 0 || end > dataSet->GetRowCount())
        return false;
    const ConstSpan<double> rows = dataSet->GetColumn(attribute).Part(start, end);
    m_Signal.assign(rows.begin(), rows.end());
    return true;
}

void SignalTemplateDataObject::SetSignal(const double* values, int length)
{
    m_Signal.assign(values, values + length);
}

void SignalTemplateDataObject::computeMean()
{
    m_Mean = std::accumulate(m_Signal.begin(), m_Signal.end(), 0.0) / GetLength();
}

void SignalTemplateDataObject::computeSd()
{
    double sum = 0.0;
    for (const double value : m_Signal)
        sum += (value - m_Mean) * (value - m_Mean);
    m_Sd = std::sqrt(sum / GetLength());
}

bool SignalTemplateDataObject::SmoothSignal(int window)
{
    if (m_Signal.empty())
        return false;
    m_Signal = SmoothedSignal(m_Signal, window);
    return true;
}

bool SignalTemplateDataObject::SmoothSignalCentred(int window)
{
    if (m_Signal.empty())
        return false;
    m_Signal = CentredSmoothedSignal(m_Signal, window);
    return true;
}

std::vector<double> SignalTemplateDataObject::resampleSignal(int up, int down, int& newLength) const
{
    std::vector<double> values = ResampledSignal(m_Signal, up, down);
    newLength = int(values.size());
    return values;
}

std::unique_ptr<SignalTemplateDataObject> SignalTemplateDataObject::resampledCopy(int up,
                                                                                  int down) const
{
    auto copy = std::make_unique<SignalTemplateDataObject>();
    int length = 0;
    copy->m_Signal = resampleSignal(up, down, length);
    if (length == 0)
        return nullptr;
    copy->m_AttName = m_AttName;
    copy->m_CollectionId = m_CollectionId;
    copy->computeMean();
    copy->computeSd();
    return copy;
}
