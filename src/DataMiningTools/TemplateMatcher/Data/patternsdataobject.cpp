#include "patternsdataobject.h"

#include "databasequery.h"
#include <QVariant>

PatternsDataObject* PatternsDataObject::FromRow(const QSqlQuery& row)
{
    auto* pattern = new PatternsDataObject(row.value(QStringLiteral("collec_id")).toInt(),
                                           row.value(QStringLiteral("name")).toString(),
                                           row.value(QStringLiteral("desc")).toString());
    pattern->SetId(row.value(QStringLiteral("id")).toInt());
    return pattern;
}

QList<PatternsDataObject*> PatternsDataObject::GetAllPatterns()
{
    QList<PatternsDataObject*> patterns;
    QSqlQuery query = PrepareQuery("SELECT * FROM pattern");
    if (!RunQuery(query))
        return patterns;
    while (NextRow(query))
        patterns.append(FromRow(query));
    return patterns;
}

PatternsDataObject* PatternsDataObject::GetPattern(int id, bool loadSignals)
{
    QSqlQuery query = PrepareQuery("SELECT * FROM pattern WHERE id = ?");
    query.addBindValue(id);
    if (!RunQuery(query) || !NextRow(query))
        return nullptr;
    std::unique_ptr<PatternsDataObject> pattern(FromRow(query));
    if (loadSignals) {
        pattern->m_SignalCollections =
            SignalTemplateCollectionDataObject::GetSignalsByPatternID(id);
        if (!LastQueryError().isEmpty())
            return nullptr;
        pattern->m_Origin = ReadPatternOrigin(id);
    }
    return pattern.release();
}

bool PatternsDataObject::DeletePattern(int id)
{
    return RunForId("DELETE FROM pattern WHERE id = :id", id);
}

bool PatternsDataObject::RenamePattern(int id, const QString& name)
{
    QSqlQuery query = PrepareQuery("UPDATE pattern SET name=:name WHERE id=:id");
    query.bindValue(QStringLiteral(":name"), name);
    query.bindValue(QStringLiteral(":id"), id);
    return RunQuery(query) && query.numRowsAffected() == 1;
}

int PatternsDataObject::InsertPattern(bool addSignals)
{
    DatabaseTransaction transaction;
    QSqlQuery query = PrepareQuery("INSERT INTO pattern (id, collec_id, name, desc) "
                                   "VALUES (:id, :collec_id, :name, :desc)");
    query.bindValue(QStringLiteral(":collec_id"), m_CollectionId);
    query.bindValue(QStringLiteral(":name"), m_Name);
    query.bindValue(QStringLiteral(":desc"), m_Desc);
    m_Id = RunInsert(query);
    if (m_Id != -1 && m_Origin.IsKnown() && !StorePatternOrigin(m_Id, m_Origin))
        return m_Id = -1;
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
