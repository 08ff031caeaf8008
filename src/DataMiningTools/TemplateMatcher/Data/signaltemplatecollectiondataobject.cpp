#include "signaltemplatecollectiondataobject.h"

#include "databasequery.h"
#include <QVariant>

QList<SignalTemplateCollectionDataObject*>
SignalTemplateCollectionDataObject::readAll(QSqlQuery& query, bool loadSignals)
{
    QList<SignalTemplateCollectionDataObject*> collections;
    bool isRead = RunQuery(query);
    while (isRead && NextRow(query)) {
        auto* collection = new SignalTemplateCollectionDataObject(
            query.value(QStringLiteral("frequency_factor")).toDouble());
        collection->m_Id = query.value(QStringLiteral("id")).toInt();
        collection->m_PatternId = query.value(QStringLiteral("pattern_id")).toInt();
        collections.append(collection);
        if (loadSignals)
            collection->m_Signals =
                SignalTemplateDataObject::GetSignalsByCollectionID(collection->m_Id);
        isRead = LastQueryError().isEmpty();
    }
    // A template that lacks some of its signals would find other things.
    if (!LastQueryError().isEmpty()) {
        qDeleteAll(collections);
        collections.clear();
    }
    return collections;
}

SignalTemplateCollectionDataObject* SignalTemplateCollectionDataObject::GetSignal(int id)
{
    QSqlQuery query = PrepareQuery("SELECT * FROM signal_template_collection WHERE id = ? "
                                   "ORDER BY frequency_factor");
    query.addBindValue(id);
    return readAll(query, true).value(0);
}

QList<SignalTemplateCollectionDataObject*>
SignalTemplateCollectionDataObject::GetSignalsByPatternID(int id, bool loadSignals)
{
    QSqlQuery query = PrepareQuery("SELECT * FROM signal_template_collection WHERE pattern_id = ? "
                                   "ORDER BY frequency_factor");
    query.addBindValue(id);
    return readAll(query, loadSignals);
}

bool SignalTemplateCollectionDataObject::DeleteSignalTemplate(int id)
{
    return RunForId("DELETE FROM signal_template_collection WHERE id = :id", id);
}

int SignalTemplateCollectionDataObject::InsertSignal(bool addSignals)
{
    DatabaseTransaction transaction;
    QSqlQuery query =
        PrepareQuery("INSERT INTO signal_template_collection (id, pattern_id, frequency_factor)"
                     "VALUES (:id, :pattern_id, :frequency_factor)");
    query.bindValue(QStringLiteral(":pattern_id"), m_PatternId);
    query.bindValue(QStringLiteral(":frequency_factor"), m_FrequencyFactor);
    m_Id = RunInsert(query);
    if (m_Id != -1 && addSignals) {
        for (SignalTemplateDataObject* signal : qAsConst(m_Signals)) {
            signal->SetCollectionId(m_Id);
            if (signal->InsertSignal() == -1)
                return m_Id = -1;
        }
    }
    if (m_Id != -1 && !transaction.Commit())
        m_Id = -1;
    return m_Id;
}
