#include <QTemporaryDir>
#include <QtTest>

namespace
{

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
    void refusesAFileWhereTheFolderShouldBe();
    void refusesGarbage();

private:
    QString databasePath() const
    {
        return m_Home->filePath(QStringLiteral("Skerrymoor/pattern_db.sqlite"));
    }
    void start();
    void checkRefusal(const char* fileNamed);

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

void TestStartup::checkRefusal(const char* fileNamed)
{
    start();
    QVERIFY(m_Program->waitForFinished(20000));
    QCOMPARE(m_Program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_Program->exitCode(), 1);
    QByteArray line;
    while (!line.startsWith("Error: ") && m_Program->canReadLine())
        line = m_Program->readLine();
    QVERIFY2(line.contains(fileNamed), line.constData());
}

void TestStartup::refusesAFileWhereTheFolderShouldBe()
{
    writeFile(m_Home->filePath(QStringLiteral("Skerrymoor")), "x");
    checkRefusal("Skerrymoor");
}

void TestStartup::refusesGarbage()
{
    QVERIFY(QDir(m_Home->path()).mkdir(QStringLiteral("Skerrymoor")));
    writeFile(databasePath(), QByteArray("anything else, ").repeated(100));
    checkRefusal("pattern_db.sqlite");
}

QTEST_GUILESS_MAIN(TestStartup)
#include "tst_startup.moc"
