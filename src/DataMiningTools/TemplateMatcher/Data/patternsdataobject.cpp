#include "patternsdataobject.h"

#include "databasequery.h"
#include <QVariant>

int PatternsDataObject::InsertPattern(bool addSignals)
{
    DatabaseTransaction transaction;
    QSqlQuery query = PrepareQuery("INSERT INTO pattern (id, collec_id, name, desc) "
                                   "VALUES (:id, :collec_id, :name, :desc)");
    query.bindValue(QStringLiteral(":collec_id"), m_CollectionId);
    query.bindValue(QStringLiteral(":name"), m_Name);
    query.bindValue(QStringLiteral(":desc"), m_Desc);
    m_Id = RunInsert(query);
    if (m_Id != -1 && addSignals) {
        for (SignalTemplateCollectionDataObject* collection : qAsConst(m_SignalCollections)) {
            collection->SetPatternId(m_Id);
            if (collection->InsertSignal(true) == -1)
                return m_Id = -1;
        }
    }
    if (m_Id != -1 && !transaction.Commit())
        m_Id = -1;
    return m_Id;
}
