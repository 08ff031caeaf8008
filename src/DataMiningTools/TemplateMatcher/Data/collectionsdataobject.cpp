#include "collectionsdataobject.h"

#include "databasequery.h"
#include <QVariant>

namespace
{

CollectionsDataObject* readCollection(const QSqlQuery& row)
{
    auto* collection = new CollectionsDataObject(row.value(QStringLiteral("name")).toString(),
                                                 row.value(QStringLiteral("desc")).toString());
    collection->SetId(row.value(QStringLiteral("id")).toInt());
    return collection;
}

} // namespace

QList<CollectionsDataObject*> CollectionsDataObject::GetAllCollections()
{
    QList<CollectionsDataObject*> collections;
    QSqlQuery query = PrepareQuery("SELECT * FROM pattern_collection");
    if (!RunQuery(query))
        return collections;
    while (NextRow(query))
        collections.append(readCollection(query));
    return collections;
}

CollectionsDataObject* CollectionsDataObject::GetCollection(int id, bool loadPatterns)
{
    QSqlQuery query = PrepareQuery("SELECT * FROM pattern_collection WHERE id = ?");
    query.addBindValue(id);
    if (!RunQuery(query) || !NextRow(query))
        return nullptr;
    auto* collection = readCollection(query);
    if (loadPatterns)
        collection->LoadPatterns();
    return collection;
}

bool CollectionsDataObject::DeleteCollection(int id)
{
    return RunForId("DELETE FROM pattern_collection WHERE id = :id", id);
}

int CollectionsDataObject::InsertCollection(bool addPatterns)
{
    DatabaseTransaction transaction;
    QSqlQuery query =
        PrepareQuery("INSERT INTO pattern_collection (id, name, desc) VALUES (:id, :name, :desc)");
    query.bindValue(QStringLiteral(":name"), m_Name);
    query.bindValue(QStringLiteral(":desc"), m_Desc);
    m_Id = RunInsert(query);
    if (m_Id != -1 && addPatterns) {
        for (PatternsDataObject* pattern : qAsConst(m_Patterns)) {
            pattern->SetCollectionId(m_Id);
            if (pattern->InsertPattern(true) == -1)
                return m_Id = -1;
        }
    }
    if (m_Id != -1 && !transaction.Commit())
        m_Id = -1;
    return m_Id;
}

bool CollectionsDataObject::UpdateCollection()
{
    QSqlQuery query =
        PrepareQuery("UPDATE pattern_collection SET name=:name, desc=:desc WHERE id=:id");
    query.bindValue(QStringLiteral(":name"), m_Name);
    query.bindValue(QStringLiteral(":desc"), m_Desc);
    query.bindValue(QStringLiteral(":id"), m_Id);
    return RunQuery(query) && query.numRowsAffected() == 1;
}

bool CollectionsDataObject::LoadPatterns()
{
    QSqlQuery query = PrepareQuery("SELECT * FROM pattern WHERE collec_id = ?");
    query.addBindValue(m_Id);
    if (!RunQuery(query))
        return false;
    qDeleteAll(m_Patterns);
    m_Patterns.clear();
    while (NextRow(query))
        m_Patterns.append(PatternsDataObject::FromRow(query));
    return LastQueryError().isEmpty();
}
