#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

void runStatement(const QString& path, const QString& statement)
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
        database.setDatabaseName(path);
        QVERIFY(database.open());
        QVERIFY(QSqlQuery().exec(statement));
    }
    QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
}

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

} // namespace

/// Runs the real program in a home of its own.
class TestStartup : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void newHome();
    void refusedDatabases_data();
    void refusedDatabases();

private:
    QString databasePath() const
    {
        return m_Home->filePath(QStringLiteral("Skerrymoor/pattern_db.sqlite"));
    }
    void start();

    std::unique_ptr<QTemporaryDir> m_Home;
    std::unique_ptr<QProcess> m_Program;
};

void TestStartup::init()
{
    m_Home = std::make_unique<QTemporaryDir>();
    m_Program = std::make_unique<QProcess>();
    m_Program->setReadChannel(QProcess::StandardError);
}

void TestStartup::cleanup()
{
    m_Program->kill();
    m_Program->waitForFinished();
}

void TestStartup::start()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_Home->path());
    m_Program->setProcessEnvironment(environment);
    m_Program->start(QCoreApplication::applicationDirPath() + QStringLiteral("/../src/skerrymoor"),
                     QStringList());
    QVERIFY2(m_Program->waitForStarted(), qPrintable(m_Program->errorString()));
}

void TestStartup::newHome()
{
    start();
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(databasePath()), 20000);
    // It goes on running: a failure would end it at once.
    QVERIFY(!m_Program->waitForFinished(1500));
    QCOMPARE(m_Program->state(), QProcess::Running);
}

void TestStartup::refusedDatabases_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("fileNamed");
    QTest::newRow("one table of four") << "create table pattern_collection(id integer primary key)"
                                       << QByteArray() << "pattern_db.sqlite";
    QTest::newRow("not a database")
        << QString() << QByteArray("anything else, ").repeated(100) << "pattern_db.sqlite";
    QTest::newRow("a file where the folder should be") << QString() << QByteArray() << "Skerrymoor";
}

void TestStartup::refusedDatabases()
{
    QFETCH(QString, statement);
    QFETCH(QByteArray, content);
    QFETCH(QString, fileNamed);
    const QString folder = m_Home->filePath(QStringLiteral("Skerrymoor"));
    if (statement.isEmpty() && content.isEmpty())
        writeFile(folder, "x");
    else
        QVERIFY(QDir().mkdir(folder));
    if (!statement.isEmpty())
        runStatement(databasePath(), statement);
    else if (!content.isEmpty())
        writeFile(databasePath(), content);

    start();
    QVERIFY(m_Program->waitForFinished(20000));
    QCOMPARE(m_Program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_Program->exitCode(), 1);
    QByteArray line;
    while (!line.startsWith("Error: ") && m_Program->canReadLine())
        line = m_Program->readLine();
    QVERIFY2(line.contains(fileNamed.toUtf8()), line.constData());
}

QTEST_GUILESS_MAIN(TestStartup)
#include "tst_startup.moc"
