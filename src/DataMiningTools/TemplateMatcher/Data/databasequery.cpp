#include "databasequery.h"

#include <QLoggingCategory>
#include <QSqlError>
#include <QVariant>

Q_LOGGING_CATEGORY(lcDatabase, "skerrymoor.database", QtWarningMsg)

namespace
{

QString& lastError()
{
    static QString text;
    return text;
}

void note(const QSqlError& error)
{
    qCDebug(lcDatabase) << error;
    lastError() = error.databaseText().isEmpty() ? error.text() : error.databaseText();
}

} // namespace

QString LastQueryError()
{
    return lastError();
}

QSqlQuery PrepareQuery(const char* statement)
{
    QSqlQuery query;
    query.setForwardOnly(true);
    query.prepare(QLatin1String(statement));
    return query;
}

bool RunQuery(QSqlQuery& query)
{
    lastError().clear();
    // Run all the same, a statement that could not be prepared would lose its reason.
    if (!query.lastError().isValid() && query.exec())
        return true;
    note(query.lastError());
    return false;
}

bool NextRow(QSqlQuery& query)
{
    if (query.next())
        return true;
    if (query.lastError().isValid())
        note(query.lastError());
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
    if (!m_Database.commit()) {
        note(m_Database.lastError());
        return false;
    }
    m_IsOpen = false;
    return true;
}
