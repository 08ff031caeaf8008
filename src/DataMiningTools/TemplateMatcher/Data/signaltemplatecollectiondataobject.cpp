#include "signaltemplatecollectiondataobject.h"

#include "databasequery.h"
#include <QVariant>

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
