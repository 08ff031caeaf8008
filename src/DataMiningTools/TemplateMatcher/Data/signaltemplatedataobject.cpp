#include "signaltemplatedataobject.h"

#include "databasequery.h"
#include "dataset.h"
#include <QDataStream>
#include <QVariant>
#include <cmath>
#include <numeric>

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
    if (attribute < 0 || end - start < 1)
        return false;
    m_Signal.clear();
    for (int row = start; row < end; ++row)
        m_Signal.push_back(dataSet->GetRow(row)->GetValue(attribute));
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
