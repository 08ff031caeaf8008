#include "patternfile.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <limits>

namespace
{

constexpr double values[] = {
    0.1, 1.0 / 3.0, -2.5e-310, std::numeric_limits<double>::max(), -1e-300, 123456789012345678.0};
constexpr int length = 6;

std::unique_ptr<PatternsDataObject> makePattern(const QString& name)
{
    auto pattern = std::make_unique<PatternsDataObject>(3, name, QStringLiteral("a\n\"b\" \u00e4"));
    pattern->SetOrigin({25, QStringLiteral("walk.csv"), 7, 13});
    for (const double factor : {double(1.0F / 3.0F), 2.0}) {
        auto* collection = new SignalTemplateCollectionDataObject(factor);
        pattern->AddSignalCollection(collection);
        for (const char* attribute : {"Acc_X", ""}) {
            auto* signal = new SignalTemplateDataObject;
            signal->setAttributeName(QLatin1String(attribute));
            signal->SetSignal(values, length);
            collection->AddSignal(signal);
        }
    }
    return pattern;
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestPatternFile : public QObject
{
    Q_OBJECT
private slots:
    void readsWhatItWrites();
    void keepsTheFileWhenItCannotWrite();
    void refuses_data();
    void refuses();
    void survivesAnyBytes();

private:
    QByteArray written();

    QTemporaryDir m_Folder;
};

QByteArray TestPatternFile::written()
{
    const auto first = makePattern(QStringLiteral("stroke"));
    const auto second = makePattern(QStringLiteral("dive"));
    const QString path = m_Folder.filePath(QStringLiteral("templates.json"));
    QString error;
    if (!PatternFile::Write(path, {first.get(), second.get()}, error))
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    return readFile(path);
}

void TestPatternFile::readsWhatItWrites()
{
    written();
    QString error;
    const auto read = PatternFile::Read(m_Folder.filePath(QStringLiteral("templates.json")), error);
    QCOMPARE(error, QString());
    QCOMPARE(int(read.size()), 2);
    QCOMPARE(read[1]->GetName(), QStringLiteral("dive"));
    QCOMPARE(read[0]->GetDesc(), QStringLiteral("a\n\"b\" \u00e4"));
    QCOMPARE(read[0]->GetOrigin().m_SamplingRate, 25);
    QCOMPARE(read[0]->GetOrigin().m_Recording, QStringLiteral("walk.csv"));
    QCOMPARE(read[0]->GetOrigin().m_From, 7);
    QCOMPARE(read[0]->GetOrigin().m_To, 13);
    const auto* collection = read[0]->GetSignalCollections()[0];
    QVERIFY(collection->GetFrequencyFactor() == double(1.0F / 3.0F));
    QCOMPARE(collection->GetSignals()[1]->GetAttributeName(), QString());
    const auto& stored = collection->GetSignals()[0]->GetValues();
    // Exactly, as the comparison of vectors is.
    QVERIFY(stored == std::vector<double>(values, values + length));
}

void TestPatternFile::keepsTheFileWhenItCannotWrite()
{
    const QByteArray before = written();
    const auto pattern = makePattern(QStringLiteral("flat"));
    auto* signal = new SignalTemplateDataObject;
    signal->SetSignal(std::vector<double>(5, 1.0).data(), 5);
    pattern->GetSignalCollections()[0]->AddSignal(signal);
    QString error;
    const QString path = m_Folder.filePath(QStringLiteral("templates.json"));
    QVERIFY(!PatternFile::Write(path, {pattern.get()}, error));
    QVERIFY(error.contains(QStringLiteral("the same value")));
    QVERIFY(!PatternFile::Write(m_Folder.filePath(QStringLiteral("none/a.json")), {}, error));
    QVERIFY(error.contains(QStringLiteral("can't be written")));
    QVERIFY(PatternFile::Read(m_Folder.path(), error).empty());
    QVERIFY(error.contains(QStringLiteral("can't be read")));
    QCOMPARE(readFile(path), before);
}

void TestPatternFile::refuses_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("error");
    const QString broken = QStringLiteral("Error: The file is broken");
    QTest::newRow("another format") << QByteArray("Skerrymoor templates") << QByteArray("templates")
                                    << QStringLiteral("Error: This is no file of templates.");
    QTest::newRow("newer") << QByteArray("\"version\":1") << QByteArray("\"version\":2")
                           << QStringLiteral("Error: The file was written by a newer version.");
    QTest::newRow("no version") << QByteArray("\"version\":1") << QByteArray("\"version\":-1")
                                << broken;
    QTest::newRow("missing value") << QByteArray("0.1") << QByteArray("null") << broken;
    QTest::newRow("text for a value") << QByteArray("0.1") << QByteArray("\"0.1\"") << broken;
    QTest::newRow("value too large") << QByteArray("0.1") << QByteArray("1e999") << broken;
    QTest::newRow("a value less") << QByteArray("0.1,") << QByteArray() << broken;
    QTest::newRow("no name") << QByteArray("\"dive\"") << QByteArray("\" \"") << broken;
    QTest::newRow("no templates") << QByteArray("\"templates\"") << QByteArray("\"other\"")
                                  << broken;
    QTest::newRow("factor 0") << QByteArray("\"factor\":2") << QByteArray("\"factor\":0") << broken;
    QTest::newRow("rows backwards") << QByteArray("\"to\":13") << QByteArray("\"to\":6") << broken;
}

void TestPatternFile::refuses()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, error);
    QByteArray bytes = written();
    const int place = bytes.indexOf(from);
    QVERIFY(place >= 0);
    bytes.replace(place, from.size(), to);
    QBuffer device(&bytes);
    QVERIFY(device.open(QIODevice::ReadOnly));
    QString told;
    QVERIFY(PatternFile::Read(device, told).empty());
    QVERIFY2(told.startsWith(error), qPrintable(told));
}

void TestPatternFile::survivesAnyBytes()
{
    const QByteArray whole = written();
    QRandomGenerator random(7);
    for (int i = 0; i < 3000; ++i) {
        QByteArray bytes = whole;
        if (i < whole.size())
            bytes.truncate(i);
        else
            for (int changes = 0; changes < 4; ++changes)
                bytes[random.bounded(bytes.size())] = char(random.bounded(256));
        QBuffer device(&bytes);
        QVERIFY(device.open(QIODevice::ReadOnly));
        QString error;
        const auto read = PatternFile::Read(device, error);
        QCOMPARE(read.empty(), !error.isEmpty());
        QVERIFY(i >= whole.size() || read.empty());
    }
    QByteArray deep(5000000, '[');
    QBuffer device(&deep);
    QVERIFY(device.open(QIODevice::ReadOnly));
    QString error;
    QVERIFY(PatternFile::Read(device, error).empty());
}

QTEST_GUILESS_MAIN(TestPatternFile)
#include "tst_patternfile.moc"
