#include "failingdevice.h"
#include "filereader.h"

#include <QBuffer>
#include <QTest>

namespace
{

// "label: values|label: values" of all rows.
QString toText(const DataSet& data)
{
    QStringList rows;
    for (int i = 0; i < data.GetRowCount(); ++i) {
        QString row = data.GetRow(i)->GetLabel() + QLatin1Char(':');
        for (int j = 0; j < data.GetRow(i)->GetValueCount(); ++j)
            row += QStringLiteral(" %1").arg(data.GetRow(i)->GetValue(j));
        rows.append(row);
    }
    return rows.join(QLatin1Char('|'));
}

} // namespace

class TestFileReader : public QObject
{
    Q_OBJECT
private slots:
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
};

void TestFileReader::reads_data()
{
    QTest::addColumn<QByteArray>("names");
    QTest::addColumn<QByteArray>("types");
    QTest::addColumn<QByteArray>("items");
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("rows");
    const auto add = [](const char* name, const char* names, const char* types, const char* items,
                        const char* attributes, const char* rows) {
        QTest::newRow(name) << QByteArray(names) << QByteArray(types) << QByteArray(items)
                            << QString::fromLatin1(attributes) << QString::fromLatin1(rows);
    };
    add("time as label", "x,t,z", "Acc X,Time,Com_Z", "1,10:30,2|3,10:31,4", "x=2 z=13",
        "10:30: 1 2|10:31: 3 4");
    add("second time column stays", "t,u", "Time,Time", "9,1", "u=15", "9: 1");
    add("short and long rows", "x,y,t", "Acc X,Acc Y,Time", "1|1,2,a,4|", "x=2 y=3",
        ": 1|a: 1 2 4|: 0");
    add("more types than names", "x", "Acc X,Acc Y,Time", "1,2,a", "x=2", "a: 1 2");
}

void TestFileReader::reads()
{
    QFETCH(QByteArray, names);
    QFETCH(QByteArray, types);
    QFETCH(QByteArray, items);
    QByteArray xml = "<a><attributenames>" + names + "</attributenames><b/><attributetypes>" +
                     types + "</attributetypes>";
    for (const QByteArray& item : items.split('|'))
        xml += "<item>" + item + "<!-- no text --></item>\n";
    QBuffer buffer;
    buffer.setData(xml + "</a>");
    buffer.open(QIODevice::ReadOnly);
    FileReader reader{QString()};
    QVERIFY(reader.Read(buffer));
    QCOMPARE(reader.GetError(), QStringLiteral("N/A"));
    const std::unique_ptr<DataSet> data(reader.GetDataSet());
    QTEST(toText(*data), "rows");
    QStringList attributes;
    for (int i = 0; i < data->GetAttributeCount(); ++i)
        attributes.append(
            QStringLiteral("%1=%2").arg(data->GetAttributeName(i)).arg(data->GetAttributeType(i)));
    QTEST(attributes.join(QLatin1Char(' ')), "attributes");
}

void TestFileReader::refuses_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("error");
    const QString parsing = QStringLiteral("Error parsing file");
    const QString extracting = QStringLiteral("Error extracting data");
    const QByteArray names = "<attributenames>x</attributenames>";
    const QByteArray types = "<attributetypes>Acc X</attributetypes>";
    QTest::newRow("binary") << QByteArray("\177ELF\0\377", 6) << parsing;
    QTest::newRow("truncated") << "<a>" + names + types + "<item>1</item>" << parsing;
    QTest::newRow("deeply nested") << QByteArray("<a>").repeated(200000) << parsing;
    QTest::newRow("no names") << "<a>" + types + "<item>1</item></a>" << extracting;
    QTest::newRow("no types") << "<a>" + names + "<item>1</item></a>" << extracting;
    QTest::newRow("no items") << "<a>" + names + types + "</a>" << extracting;
}

void TestFileReader::refuses()
{
    QFETCH(QByteArray, xml);
    FailingDevice device(xml, xml.size());
    FileReader reader{QString()};
    QVERIFY(!reader.Read(device));
    QTEST(reader.GetError(), "error");
    QCOMPARE(reader.GetDataSet(), nullptr);
}

QTEST_GUILESS_MAIN(TestFileReader)
#include "tst_filereader.moc"
