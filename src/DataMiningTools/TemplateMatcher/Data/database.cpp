#include "database.h"

#include "collectionsdataobject.h"
#include "databasequery.h"
#include "patternorigin.h"
#include "settingsfolder.h"
#include <QDir>
#include <QVariant>
#include <algorithm>
#include <cerrno>

namespace
{

constexpr const char* tableNames[] = {"pattern_collection", "pattern", "signal_template_collection",
                                      "signal_template"};

constexpr const char* createStatements[] = {
    "create table pattern_collection(id integer primary key, name varchar, desc varchar)",
    "create table pattern(id integer primary key, collec_id integer, name varchar, desc varchar, "
    "foreign key(collec_id) references pattern_collection(id) ON DELETE CASCADE)",
    "create table signal_template_collection(id integer primary key, pattern_id integer, "
    "frequency_factor float,foreign key(pattern_id) references pattern(id) ON DELETE CASCADE)",
    "create table signal_template(id integer primary key, signal_collection_id integer, signal "
    "mediumblob, signal_length integer, signal_mean float, signal_sd float, att_name "
    "varchar,foreign key(signal_collection_id) references signal_template_collection(id) ON "
    "DELETE CASCADE)"};

QSqlDatabase defaultConnection()
{
    const QLatin1String name(QSqlDatabase::defaultConnection);
    if (QSqlDatabase::contains(name))
        return QSqlDatabase::database(name, false);
    return QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
}

// Runs one statement; an error of type NoError when it went well.
QSqlError run(const char* statement)
{
    QSqlQuery query;
    return query.exec(QLatin1String(statement)) ? QSqlError() : query.lastError();
}

QSqlError createTables()
{
    DatabaseTransaction transaction;
    for (const char* statement : createStatements) {
        QSqlError error = run(statement);
        if (error.isValid())
            return error;
    }
    CollectionsDataObject collection(QStringLiteral("Templates"),
                                     QStringLiteral("Collection of templates"));
    if (collection.InsertCollection() == -1 || !transaction.Commit())
        return QSqlError(QStringLiteral("The first collection can't be stored"),
                         QSqlDatabase::database().lastError().databaseText(),
                         QSqlError::TransactionError);
    return QSqlError();
}

QSqlError prepare(QSqlDatabase& database)
{
    if (!database.open())
        return database.lastError();
    QSqlError pragmaError = run("PRAGMA foreign_keys = ON;");
    if (pragmaError.isValid())
        return pragmaError;
    // The list of tables is empty for a file that can't be read, without a reason; this has one.
    QSqlError readError = run("SELECT count(*) FROM sqlite_master");
    if (readError.isValid())
        return readError;
    const QStringList tables = database.tables();
    const bool isComplete =
        std::all_of(std::begin(tableNames), std::end(tableNames),
                    [&](const char* name) { return tables.contains(QLatin1String(name)); });
    const QSqlError error = isComplete ? QSqlError() : createTables();
    // A database that can't be written serves all the same: its origins are unknown.
    if (!error.isValid())
        PrepareOriginTable();
    return error;
}

} // namespace

QSqlError InitializeDatabase()
{
    const QString folder = SettingsFolder();
    if (!QDir(folder).exists() && !QDir().mkpath(folder)) {
        const QString reason = qt_error_string(errno);
        return QSqlError(QStringLiteral("(settings folder ") + folder +
                             QStringLiteral(" can't be made)"),
                         reason, QSqlError::ConnectionError);
    }
    QSqlDatabase database = defaultConnection();
    database.close();
    const QString file = folder + QStringLiteral("pattern_db.sqlite");
    database.setDatabaseName(file);
    // Another process may hold the file; waiting longer would look like a hang.
    database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=1000"));
    const QSqlError error = prepare(database);
    if (!error.isValid())
        return QSqlError();
    database.close();
    return QSqlError(QStringLiteral("(template database ") + file + QStringLiteral(": ") +
                         error.driverText() + QLatin1Char(')'),
                     error.databaseText(), error.type(), error.nativeErrorCode());
}
