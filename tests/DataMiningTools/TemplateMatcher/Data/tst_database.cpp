#include "collectionsdataobject.h"
#include "database.h"
#include "ordinaryuser.h"
#include "patternbuilder.h"
#include "testdata.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>

namespace
{

const QString otherConnection = QStringLiteral("other");

QVariant ask(const char* question)
{
    QSqlQuery query{QLatin1String(question)};
    return query.next() ? query.value(0) : QVariant();
}

} // namespace

class TestDatabase : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void preparesAndKeeps();
    void refusesPartialDatabases_data();
    void refusesPartialDatabases();
    void refusesWhatIsNoDatabase_data();
    void refusesWhatIsNoDatabase();
    void refusesALockedDatabase();
    void refusesAReadOnlyDatabase();
    void refusesAFolderThatCannotBeMade_data();
    void refusesAFolderThatCannotBeMade();
    void makesTheFoldersAboveToo();
    void storesAndReadsCollections();
    void storesAWholeCollectionOrNothing();
    void takesSignalsFromTheData();
    void keepsOrigins();

private:
    void execute(const QStringList& statements);
    QString refusal();

    std::unique_ptr<QTemporaryDir> m_Home;
    QString m_File;
};

void TestDatabase::init()
{
    m_Home = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_Home->path());
    m_File = m_Home->filePath(QStringLiteral("Skerrymoor/pattern_db.sqlite"));
}

void TestDatabase::cleanup()
{
    QSqlDatabase::database(QLatin1String(QSqlDatabase::defaultConnection), false).close();
    QSqlDatabase::removeDatabase(otherConnection);
}

// Runs statements on the file, on a connection that stays open.
void TestDatabase::execute(const QStringList& statements)
{
    QDir(m_Home->path()).mkdir(QStringLiteral("Skerrymoor"));
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), otherConnection);
    database.setDatabaseName(m_File);
    QVERIFY(database.open());
    for (const QString& statement : statements)
        QVERIFY2(QSqlQuery(database).exec(statement), qPrintable(statement));
}

// The text of the error, which must come soon.
QString TestDatabase::refusal()
{
    QElapsedTimer timer;
    timer.start();
    const QSqlError error = InitializeDatabase();
    if (timer.elapsed() > 3000)
        return QStringLiteral("too slow");
    return error.isValid() ? error.text() : QString();
}

void TestDatabase::preparesAndKeeps()
{
    QCOMPARE(refusal(), QString());
    QVERIFY(QFile::exists(m_File));
    QVERIFY(!QFile::exists(m_Home->filePath(QStringLiteral("Skerrymoor/Skerrymoor.ini"))));
    QCOMPARE(ask("PRAGMA foreign_keys").toInt(), 1);
    QCOMPARE(ask("SELECT name || '|' || desc FROM pattern_collection").toString(),
             QStringLiteral("Templates|Collection of templates"));
    QCOMPARE(CollectionsDataObject(QStringLiteral("Mine")).InsertCollection(), 2);
    QCOMPARE(refusal(), QString());
    QCOMPARE(ask("SELECT count(*) FROM pattern_collection").toInt(), 2);
    QCOMPARE(ask("PRAGMA foreign_keys").toInt(), 1);
}

void TestDatabase::refusesPartialDatabases_data()
{
    QTest::addColumn<QStringList>("tables");
    const QStringList all{QStringLiteral("pattern_collection"), QStringLiteral("pattern"),
                          QStringLiteral("signal_template_collection"),
                          QStringLiteral("signal_template")};
    for (const QString& table : all) {
        QStringList others = all;
        others.removeOne(table);
        QTest::newRow(qPrintable(QStringLiteral("only ") + table)) << QStringList(table);
        QTest::newRow(qPrintable(QStringLiteral("all but ") + table)) << others;
    }
}

void TestDatabase::refusesPartialDatabases()
{
    QFETCH(QStringList, tables);
    QStringList statements;
    for (const QString& table : tables)
        statements.append(QStringLiteral("create table %1(id integer)").arg(table));
    execute(statements);
    const QString text = refusal();
    QVERIFY2(text.contains(QStringLiteral("already exists")) && text.contains(m_File),
             qPrintable(text));
    QStringList left = QSqlDatabase::database(otherConnection).tables();
    left.sort();
    tables.sort();
    QCOMPARE(left, tables);
}

void TestDatabase::refusesWhatIsNoDatabase_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a folder") << true << QStringLiteral("unable to open database file");
    QTest::newRow("any bytes") << false << QStringLiteral("file is not a database");
}

void TestDatabase::refusesWhatIsNoDatabase()
{
    QFETCH(bool, isFolder);
    QFETCH(QString, reason);
    QDir(m_Home->path()).mkpath(isFolder ? m_File : QStringLiteral("Skerrymoor"));
    const QByteArray bytes(5000, 'x');
    QFile file(m_File);
    if (!isFolder) {
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
    }
    const QString text = refusal();
    QVERIFY2(text.contains(reason) && text.contains(m_File), qPrintable(text));
    QCOMPARE(QFileInfo(m_File).isDir(), isFolder);
    QVERIFY(isFolder || (file.open(QIODevice::ReadOnly) && file.readAll() == bytes));
}

void TestDatabase::refusesALockedDatabase()
{
    execute({QStringLiteral("create table notes(id integer)"), QStringLiteral("BEGIN EXCLUSIVE")});
    const QString text = refusal();
    QVERIFY2(text.contains(QStringLiteral("locked")) && text.contains(m_File), qPrintable(text));
    QSqlDatabase::removeDatabase(otherConnection);
    QCOMPARE(refusal(), QString());
    QVERIFY(QSqlDatabase::database().tables().contains(QStringLiteral("notes")));
}

void TestDatabase::refusesAReadOnlyDatabase()
{
    execute({QStringLiteral("create table notes(id integer)")});
    // Readable for all, writable for none.
    const QFileDevice::Permissions forAll =
        QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther;
    QFile::setPermissions(m_File, forAll);
    for (const QString& folder : {m_Home->path(), QFileInfo(m_File).path()})
        QFile::setPermissions(folder, forAll | QFileDevice::ExeOwner | QFileDevice::ExeGroup |
                                          QFileDevice::ExeOther | QFileDevice::WriteOwner);
    const OrdinaryUser user;
    QVERIFY(user.IsOrdinary());
    const QString text = refusal();
    QVERIFY2(text.contains(QStringLiteral("readonly")) && text.contains(m_File), qPrintable(text));
}

void TestDatabase::refusesAFolderThatCannotBeMade_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("below a file") << QStringLiteral("file") << qt_error_string(ENOTDIR);
    QTest::newRow("a file of that name") << QStringLiteral("taken") << qt_error_string(EEXIST);
}

void TestDatabase::refusesAFolderThatCannotBeMade()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    const QDir home(m_Home->path());
    home.mkdir(QStringLiteral("taken"));
    for (const char* name : {"file", "taken/Skerrymoor"}) {
        QFile file(home.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.filePath(path));
    const QString text = refusal();
    QVERIFY2(text.contains(home.filePath(path)) && text.contains(reason), qPrintable(text));
}

void TestDatabase::makesTheFoldersAboveToo()
{
    const QDir home(m_Home->path());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       home.filePath(QStringLiteral("new/config")));
    QCOMPARE(refusal(), QString());
    QVERIFY(home.exists(QStringLiteral("new/config/Skerrymoor/pattern_db.sqlite")));
}

void TestDatabase::storesAndReadsCollections()
{
    QCOMPARE(refusal(), QString());
    CollectionsDataObject mine(QStringLiteral("Mine"), QStringLiteral("of me"));
    mine.AddPattern(new PatternsDataObject(-1, QStringLiteral("Dive"), QStringLiteral("deep")));
    const int id = mine.InsertCollection(true);
    QVERIFY(id > 0);
    mine.SetDesc(QStringLiteral("it's \"mine\""));
    QVERIFY(mine.UpdateCollection());

    const QList<CollectionsDataObject*> all = CollectionsDataObject::GetAllCollections();
    QCOMPARE(all.size(), 2);
    QCOMPARE(all[1]->GetDesc(), mine.GetDesc());
    QVERIFY(all[1]->GetPatterns().isEmpty());
    qDeleteAll(all);
    const std::unique_ptr<CollectionsDataObject> read(
        CollectionsDataObject::GetCollection(id, true));
    QVERIFY(read->LoadPatterns());
    QCOMPARE(read->GetName(), QStringLiteral("Mine"));
    QCOMPARE(read->GetPatterns().size(), 1);
    QCOMPARE(read->GetPatterns().first()->GetDesc(), QStringLiteral("deep"));
    QCOMPARE(read->GetPatterns().first()->GetCollectionId(), id);
    QVERIFY(read->GetPatterns().first()->GetId() > 0);

    QVERIFY(CollectionsDataObject::DeleteCollection(id));
    QCOMPARE(CollectionsDataObject::GetCollection(id, true), nullptr);
    QCOMPARE(ask("SELECT count(*) FROM pattern").toInt(), 0);
}

void TestDatabase::storesAWholeCollectionOrNothing()
{
    QCOMPARE(refusal(), QString());
    CollectionsDataObject mine;
    auto* pattern = new PatternsDataObject;
    auto* factor = new SignalTemplateCollectionDataObject(0.5);
    auto* signal = new SignalTemplateDataObject;
    const double values[] = {1.0, -2.5};
    signal->SetSignal(values, 2);
    signal->setAttributeName(QStringLiteral("Acc_X"));
    mine.AddPattern(pattern);
    pattern->AddSignalCollection(factor);
    factor->AddSignal(signal);
    QVERIFY(mine.InsertCollection(true) > 0);
    QCOMPARE(factor->GetPatternId(), pattern->GetId());
    QCOMPARE(signal->GetCollectionId(), factor->GetId());
    QCOMPARE(ask("SELECT frequency_factor FROM signal_template_collection").toDouble(), 0.5);
    QCOMPARE(ask("SELECT signal_length || att_name FROM signal_template").toString(),
             QStringLiteral("2Acc_X"));
    // IEEE 754: 1.0 is 3FF0..., -2.5 is C004...; big end first.
    QCOMPARE(ask("SELECT hex(signal) FROM signal_template").toString(),
             QStringLiteral("3FF0000000000000C004000000000000"));

    QVERIFY(QSqlQuery().exec(QStringLiteral("DROP TABLE signal_template")));
    QCOMPARE(mine.InsertCollection(true), -1);
    QCOMPARE(mine.GetId(), -1);
    QCOMPARE(ask("SELECT count(*) FROM pattern_collection").toInt(), 2);
    QCOMPARE(ask("SELECT count(*) FROM pattern").toInt(), 1);
}

void TestDatabase::takesSignalsFromTheData()
{
    const auto data = MakeDataSet("0 2\n0 4\n0 4\n0 4\n0 5\n0 5\n0 7\n0 9");
    SignalTemplateDataObject signal;
    QVERIFY(!signal.SetSignal(data.get(), -1, 0, 8));
    QVERIFY(!signal.SetSignal(data.get(), 1, 4, 4));
    QVERIFY(signal.SetSignal(data.get(), 1, 0, 8));
    QCOMPARE(signal.GetLength(), 8);
    QCOMPARE(signal.GetSignal()[6], 7.0);
    // By hand: the squares of the distances from 5 add up to 32, over 8 values.
    signal.computeMean();
    signal.computeSd();
    QCOMPARE(signal.GetMean(), 5.0);
    QCOMPARE(signal.GetSd(), 2.0);
}

void TestDatabase::keepsOrigins()
{
    // A database of an older version, with a pattern in it.
    QCOMPARE(refusal(), QString());
    QVERIFY(QSqlQuery().exec(QStringLiteral("DROP TABLE pattern_origin")));
    const int old = PatternsDataObject(1, QStringLiteral("old")).InsertPattern(true);
    QCOMPARE(refusal(), QString());
    const QStringList unknown{
        QStringLiteral("Attributes: none"), QStringLiteral("Sampling rate: unknown"),
        QStringLiteral("Recording: unknown"), QStringLiteral("Rows: unknown")};
    QCOMPARE(DescribePattern(ReadPatternSummary(old)), unknown);

    auto data = MakeDataSet("0 2\n1 3", {QStringLiteral("Depth"), QStringLiteral("Acc_X")});
    data->m_SamplingRate = 25;
    data->m_SourceName = QStringLiteral("seal.csv");
    PatternRequest request;
    request.m_CollectionId = 1;
    request.m_To = 2;
    request.m_Attributes = {0, 1};
    request.m_Factors = {{1, 1}, {2, 1}};
    const int id = MakePattern(data.get(), request)->InsertPattern(true);
    const PatternSummary summary = ReadPatternSummary(id);
    const QStringList known{QStringLiteral("Attributes: Depth, Acc_X"),
                            QStringLiteral("Sampling rate: 25 Hz"),
                            QStringLiteral("Recording: seal.csv"), QStringLiteral("Rows: 0 to 2")};
    QCOMPARE(DescribePattern(summary), known);
    QCOMPARE(FindMismatches(summary, *data), QStringList());
    const auto other = MakeDataSet("1", {QStringLiteral("depth")});
    QCOMPARE(FindMismatches(summary, *other).size(), 3);
    QVERIFY(FindMismatches(summary, *other).first().contains(QStringLiteral("25 Hz")));

    QVERIFY(PatternsDataObject::DeletePattern(id));
    QCOMPARE(ask("SELECT count(*) FROM pattern_origin").toInt(), 0);
}

QTEST_GUILESS_MAIN(TestDatabase)
#include "tst_database.moc"
