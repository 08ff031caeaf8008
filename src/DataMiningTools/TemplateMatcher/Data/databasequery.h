#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>

/// Helpers for the rows of the template database, on the default connection. Failures go to the
/// log and to LastQueryError.

/// A query ready for its values; without a valid statement it fails when it is run.
QSqlQuery PrepareQuery(const char* statement);
bool RunQuery(QSqlQuery& query);
/// Moves to the next row of a query that was run; false behind the last one and after a failure.
bool NextRow(QSqlQuery& query);
/// Runs an insert; the new row's id, or -1.
int RunInsert(QSqlQuery& query);
/// Runs a statement whose only value is an id.
bool RunForId(const char* statement, int id);

/// Why the statement that was run last failed; empty when it went well.
QString LastQueryError();

/// Takes back what was written since its construction unless committed. Inside another
/// transaction it does nothing: the outer one decides.
class DatabaseTransaction
{
public:
    DatabaseTransaction();
    ~DatabaseTransaction();
    DatabaseTransaction(const DatabaseTransaction&) = delete;
    DatabaseTransaction& operator=(const DatabaseTransaction&) = delete;

    bool Commit();

private:
    QSqlDatabase m_Database;
    bool m_IsOpen;
};
