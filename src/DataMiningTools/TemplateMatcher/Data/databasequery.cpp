#include "databasequery.h"

#include <QLoggingCategory>
#include <QSqlError>
#include <QVariant>

Q_LOGGING_CATEGORY(lcDatabase, "skerrymoor.database", QtWarningMsg)

QSqlQuery PrepareQuery(const char* statement)
{
    QSqlQuery query;
    if (!query.prepare(QLatin1String(statement)))
        qCDebug(lcDatabase) << query.lastError();
    return query;
}

bool RunQuery(QSqlQuery& query)
{
    if (query.exec())
        return true;
    qCDebug(lcDatabase) << query.lastError();
    return false;
}

int RunInsert(QSqlQuery& query)
{
    return RunQuery(query) ? query.lastInsertId().toInt() : -1;
}

bool RunForId(const char* statement, int id)
{
    QSqlQuery query = PrepareQuery(statement);
    query.bindValue(0, id);
    return RunQuery(query);
}

DatabaseTransaction::DatabaseTransaction()
    : m_Database(QSqlDatabase::database()), m_IsOpen(m_Database.transaction())
{
}

DatabaseTransaction::~DatabaseTransaction()
{
    if (m_IsOpen)
        m_Database.rollback();
}

bool DatabaseTransaction::Commit()
{
    if (!m_IsOpen)
        return true;
    if (!m_Database.commit())
        return false;
    m_IsOpen = false;
    return true;
}
