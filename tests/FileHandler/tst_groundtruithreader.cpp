#include "groundtruithreader.h"
#include "testdata.h"

#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QtTest>

namespace
{

QString toText(const GroundTruithBehaviorCollection& collection)
{
    QStringList texts;
    for (const QString& name : collection.Names()) {
        for (const GroundTruithInstance* instance : *collection.Get(name))
            texts.append(name +
                         QStringLiteral("(%1,%2)").arg(instance->GetFrom()).arg(instance->GetTo()));
    }
    return texts.join(QLatin1Char('|')).replace(QChar(QChar::Null), QLatin1Char('~'));
}

} // namespace

class TestGroundTruithReader : public QObject
{
    Q_OBJECT
private slots:
    void reads_data();
    void reads();
    void refuses();
};

void TestGroundTruithReader::reads_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");
    const auto add = [](const char* name, const QByteArray& text, const char* expected) {
        QTest::newRow(name) << text << QString::fromUtf8(expected);
    };
    add("rows by label", "walk,1,5\nrun,2,3\nwalk,7,8\n", "walk(0,4)|walk(6,7)|run(1,2)");
    add("empty file", "", "");
    add("no final newline", "a,1,2\nb,3,4", "a(0,1)|b(2,3)");
    add("CRLF and stray CR", "a,1,2\r\nb,\r3,4\r\n", "a(0,1)|b(2,3)");
    add("UTF-8 mark", "\xEF\xBB\xBF\xC3\x89,1,2", "\xC3\xA9(0,1)");
    add("UTF-16",
        QByteArray("\xFF\xFE"
                   "a\0,\0001\0,\0002\0",
                   12),
        "a(0,1)");
    add("end beyond the data", "a,1,99", "a(0,-1)");
    add("row 0 has no label", "a,0,5\nb,-1,5\nc,x,5\nd,1.0,5\ne,1,5", "e(0,4)");
    add("short records", "a\nb,1\n\n,\nc,1,2,more", "c(0,1)");
    add("blanks", " A b , 1 ,\t2 ", " a b (0,1)");
    add("no name", ",1,2", "(0,1)");
    add("the first row of a label", "a,twice,Twice", "a(9,9)");
    add("quoted", "\"a,b\",\"1\",2\n\"c\nd\",1,\"2\"\n", "a,b(0,1)|c\nd(0,1)");
    add("doubled quotes", "\"say \"\"hi\"\"\",1,2\nx\"\"y,1,2", "say \"hi\"(0,1)|x\"y(0,1)");
    add("quotes inside", "a\"b,c\"d,1,2", "a\"b,c\"d(0,1)");
    add("never closed", "a,1,2\nb,3,4,\"rest\nc,1,2\n", "a(0,1)");
    add("only quotes", QByteArray(99999, '"'), "");
    add("NUL", QByteArray("a\0b,1,2\n\0c,1,2", 14), "a~b(0,1)|~c(0,1)");
    add("binary", QByteArray("\177ELF\0\377\xFE\x80\n,\0,\n", 13), "");
    add("wide line", "a,1,2" + QByteArray(3000000, ',') + "\nb,1,2", "a(0,1)|b(0,1)");
    add("open quote over many fields", "a,1,2\n\"" + QByteArray("x,").repeated(1000000), "a(0,1)");
}

void TestGroundTruithReader::reads()
{
    QFETCH(QByteArray, text);
    const auto data = MakeColumn(std::vector<double>(12));
    data->GetRow(9)->SetLabel(QStringLiteral("twice"));
    data->GetRow(10)->SetLabel(QStringLiteral("twice"));
    QTemporaryFile file;
    QVERIFY(file.open() && file.write(text) == text.size() && file.flush());
    GroundTruithReader reader(file.fileName());
    reader.SetDataSet(data.get());
    // A second reading starts afresh.
    for (int i = 0; i < 2; ++i) {
        QVERIFY(reader.ReadFile());
        QTEST(toText(*reader.GetCollection()), "expected");
    }
}

void TestGroundTruithReader::refuses()
{
    const QTemporaryDir directory;
    QFile huge(directory.filePath(QStringLiteral("huge")));
    QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(qint64(3) << 30));
    const auto data = MakeColumn({1});
    for (const char* name : {"missing", ".", "huge"}) {
        GroundTruithReader reader(directory.filePath(QLatin1String(name)));
        QVERIFY(!reader.ReadFile());
        reader.SetDataSet(data.get());
        QVERIFY(!reader.ReadFile());
        QCOMPARE(reader.GetError() == QStringLiteral("Unable to find data file."), *name != 'h');
        QCOMPARE(toText(*reader.GetCollection()), QString());
    }
}

QTEST_GUILESS_MAIN(TestGroundTruithReader)
#include "tst_groundtruithreader.moc"
