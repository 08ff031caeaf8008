#include "delimitedtextreader.h"
#include "failingdevice.h"
#include "scriptedprogress.h"

#include <QBuffer>
#include <QTest>
#include <QTextCodec>
#include <QTextStream>
#include <random>

Q_DECLARE_METATYPE(DelimitedTextSettings)

namespace
{

const QString tooMany = QStringLiteral(
    "A large number of attriubte mis-matches have been found. Please check the data is in the "
    "correct format with the same number of columns are present on each row.");

DelimitedTextSettings settings(const QString& delimiter, int startRow = 0, int startColumn = 0)
{
    return {delimiter, startRow, startColumn};
}

// "1 2|3 4": rows apart by a bar, values by blanks.
QString toText(const DataSet* data)
{
    if (!data)
        return QStringLiteral("null");
    QStringList rows;
    for (int i = 0; i < data->GetRowCount(); ++i) {
        QStringList values;
        for (int j = 0; j < data->GetRow(i)->GetValueCount(); ++j)
            values.append(QString::number(data->GetRow(i)->GetValue(j), 'g', 17));
        rows.append(values.join(QLatin1Char(' ')));
    }
    return rows.join(QLatin1Char('|'));
}

struct Outcome {
    bool isRead = false;
    QString rows;
    QStringList warnings;
    QString error;
    int columns = 0;
};

Outcome read(QIODevice& device, const DelimitedTextSettings& how)
{
    NoProgress progress;
    DelimitedTextReader reader(how);
    Outcome outcome;
    outcome.isRead = reader.Read(device, progress);
    const std::unique_ptr<DataSet> data = reader.TakeDataSet();
    outcome.rows = toText(data.get());
    outcome.columns = data ? data->GetAttributeCount() : -1;
    outcome.warnings = reader.GetWarnings();
    outcome.error = reader.GetError();
    return outcome;
}

Outcome read(QByteArray text, const DelimitedTextSettings& how)
{
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    return read(buffer, how);
}

// The plain way, line by line, as the reader is meant to work.
Outcome readPlainly(QByteArray text, const DelimitedTextSettings& how)
{
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly | QIODevice::Text);
    QTextStream stream(&buffer);
    for (int i = 0; i < how.startRow; ++i)
        stream.readLine();
    Outcome outcome;
    QStringList rows;
    int width = 0;
    for (int line = how.startRow + 1; !stream.atEnd(); ++line) {
        const QString content = stream.readLine();
        if (content.trimmed().isEmpty())
            continue;
        const QStringList parts = content.split(how.delimiter).mid(how.startColumn);
        if (width > 0 && parts.size() != width) {
            outcome.warnings.append(QStringLiteral("Attribute mis-match at line %1").arg(line));
            if (outcome.warnings.size() <= 10)
                continue;
            outcome.error = tooMany;
            break;
        }
        width = parts.size();
        QStringList values;
        for (const QString& part : parts)
            values.append(QString::number(part.toDouble(), 'g', 17));
        rows.append(values.join(QLatin1Char(' ')));
    }
    outcome.rows = rows.join(QLatin1Char('|'));
    outcome.isRead = outcome.error.isEmpty();
    return outcome;
}

} // namespace

class TestDelimitedTextReader : public QObject
{
    Q_OBJECT
private slots:
    void reads_data();
    void reads();
    void warnsOfOtherWidths();
    void readsEncodings();
    void agreesWithThePlainWay();
    void readsLinesLongerThanABlock();
    void refusesAnEndlessLine();
    void survivesFailingDevices();
    void stops();
    void readsOneColumn();
};

void TestDelimitedTextReader::reads_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<DelimitedTextSettings>("how");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("error");
    const QString comma = QStringLiteral(",");
    const auto add = [](const char* name, const QByteArray& text, const DelimitedTextSettings& how,
                        const char* rows, const QString& error = QString()) {
        QTest::newRow(name) << text << how << QString::fromLatin1(rows) << error;
    };
    add("nothing", "", settings(comma), "");
    add("only line feeds", "\n\n \n\t\n", settings(comma), "");
    add("CRLF", "1,2\r\n\r\n3,4\r\n", settings(comma), "1 2|3 4");
    add("CR inside", "1,2\r3\n4,5", settings(comma), "1 23|4 5");
    add("only BOM", "\xEF\xBB\xBF", settings(comma), "");
    add("words and dates", "21/11/2026,x,\n,,", settings(comma), "0 0 0|0 0 0");
    add("trailing delimiter", "1,2,\n3,4,\n", settings(comma), "1 2 0|3 4 0");
    add("NUL", QByteArray("1\0,2\n", 5), settings(comma), "0 2");
    add("tab", "1\t2\n", settings(QStringLiteral("\t")), "1 2");
    add("long delimiter", "1, 2,3\n", settings(QStringLiteral(", ")), "1 0");
    add("digit as delimiter", "102\n", settings(QStringLiteral("0")), "1 2");
    add("empty delimiter", "12", settings(QString()), "0 1 2 0");
    add("empty delimiter, second column on", "12", settings(QString(), 0, 2), "2 0");
    add("delimiter beyond ASCII", "1\302\2652", settings(QStringLiteral("\u00B5")), "1 2");
    add("header skipped", "a,b,c\n1,2\n", settings(comma, 1), "1 2");
    add("start row beyond the end", "1,2\n", settings(comma, 99), "");
    add("start column", "d,t,1,2\nd,t,3,4\n", settings(comma, 0, 2), "1 2|3 4");
    add("start column at the width", "\n1,2\n3,4\n", settings(comma, 0, 2), "",
        QStringLiteral("The start column is beyond the end of line 2"));
    add("negative starts", "1,2\n", settings(comma, -1, -1), "1 2");
}

void TestDelimitedTextReader::reads()
{
    QFETCH(QByteArray, text);
    QFETCH(DelimitedTextSettings, how);
    QFETCH(QString, error);
    const Outcome outcome = read(text, how);
    QTEST(outcome.rows, "rows");
    QCOMPARE(outcome.error, error);
    QCOMPARE(outcome.isRead, error.isEmpty());
    QCOMPARE(outcome.warnings, QStringList());
    QCOMPARE(outcome.columns, outcome.rows.section(QLatin1Char('|'), 0, 0)
                                  .split(QLatin1Char(' '), Qt::SkipEmptyParts)
                                  .size());
}

void TestDelimitedTextReader::warnsOfOtherWidths()
{
    // Lines count from 1, skipped and empty ones included; the eleventh warning ends the reading.
    const DelimitedTextSettings how = settings(QStringLiteral(","), 1);
    const QByteArray ten = "head\n1,2\n\n3\n" + QByteArray("6,7,8\n").repeated(9) + "4,5\n";
    const Outcome enough = read(ten, how);
    QVERIFY(enough.isRead);
    QCOMPARE(enough.rows, QStringLiteral("1 2|4 5"));
    QCOMPARE(enough.warnings.first(), QStringLiteral("Attribute mis-match at line 4"));
    const Outcome outcome = read(ten + "6\n7,8\n", how);
    QVERIFY(!outcome.isRead);
    QCOMPARE(outcome.error, tooMany);
    QCOMPARE(outcome.warnings.size(), 11);
    QCOMPARE(outcome.warnings.last(), QStringLiteral("Attribute mis-match at line 15"));
    QCOMPARE(outcome.rows, enough.rows);
}

void TestDelimitedTextReader::readsEncodings()
{
    // Longer than a block, so that characters lie across its end.
    QString text = QStringLiteral("\uFEFF\u20AC,2\r\n");
    QString rows = QStringLiteral("0 2");
    for (int i = 0; i < 60000; ++i) {
        text += QStringLiteral("%1,\u2003-0.5\n").arg(i);
        rows += QStringLiteral("|%1 -0.5").arg(i);
    }
    for (const char* codec : {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"}) {
        const QByteArray encoded = QTextCodec::codecForName(codec)->fromUnicode(text);
        QVERIFY2(read(encoded, settings(QStringLiteral(","))).rows == rows, codec);
    }
}

void TestDelimitedTextReader::agreesWithThePlainWay()
{
    std::mt19937 random(7);
    const auto choose = [&](int count) { return int(random() % unsigned(count)); };
    const QByteArray pieces[] = {"1",     "-2.5",  "0.123456", "1e3",
                                 ",",     ",",     ",",        "\n",
                                 "\n",    "\n",    "\r\n",     "\r",
                                 " ",     "x",     ",,",       "\xC2\xA0",
                                 "\xFF",  "inf",   "\xC3",     QByteArray(1, '\0'),
                                 "1,2\n", "3,4\n", "+7",       "12345678.12345678"};
    for (int i = 0; i < 20000; ++i) {
        QByteArray text;
        for (int length = choose(60); length > 0; --length)
            text += pieces[choose(int(std::size(pieces)))];
        const DelimitedTextSettings how = settings(QStringLiteral(","), choose(3));
        const Outcome outcome = read(text, how);
        const Outcome plain = readPlainly(text, how);
        QVERIFY2(outcome.rows == plain.rows && outcome.error == plain.error,
                 text.toPercentEncoding().constData());
        QVERIFY2(outcome.warnings == plain.warnings, text.toPercentEncoding().constData());
    }
}

void TestDelimitedTextReader::readsLinesLongerThanABlock()
{
    const int width = 300000;
    const QByteArray line = QByteArray("7,").repeated(width - 1) + "7\n";
    const Outcome outcome = read(line + "1,2\n" + line, settings(QStringLiteral(",")));
    QVERIFY(outcome.isRead);
    QCOMPARE(outcome.columns, width);
    QCOMPARE(outcome.rows.count(QLatin1Char('7')), 2 * width);
    QCOMPARE(outcome.warnings, QStringList(QStringLiteral("Attribute mis-match at line 2")));
}

void TestDelimitedTextReader::refusesAnEndlessLine()
{
    const Outcome outcome =
        read("1,2\n" + QByteArray(80'000'000, '7'), settings(QStringLiteral(",")));
    QVERIFY(!outcome.isRead);
    QCOMPARE(outcome.error, QStringLiteral("A line is too long to be a row of values"));
    QCOMPARE(outcome.rows, QStringLiteral("1 2"));
}

void TestDelimitedTextReader::survivesFailingDevices()
{
    const QByteArray text = QByteArray("1,2\n").repeated(3);
    for (int readable = 0; readable < text.size(); ++readable) {
        FailingDevice device(text, readable);
        const Outcome outcome = read(device, settings(QStringLiteral(",")));
        QVERIFY(!outcome.isRead);
        QCOMPARE(outcome.error, QStringLiteral("The file can't be read: bad sector"));
        QCOMPARE(outcome.rows, QStringLiteral("null"));
    }
    FailingDevice device(text, text.size());
    QCOMPARE(read(device, settings(QStringLiteral(","))).rows, QStringLiteral("1 2|1 2|1 2"));
}

void TestDelimitedTextReader::stops()
{
    QByteArray text = QByteArray("1,2\n").repeated(1000);
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    ScriptedProgress progress([](int line) { return line >= 300; });
    DelimitedTextReader reader(settings(QStringLiteral(",")));
    QVERIFY(!reader.Read(buffer, progress));
    QCOMPARE(reader.GetError(), QStringLiteral("Reading the file was stopped"));
    QVERIFY(!reader.TakeDataSet());
}

void TestDelimitedTextReader::readsOneColumn()
{
    const QByteArray text = "head\nd,10:30,1\n\nd,\xC3\xA9,2\nbad\nd,,3\n";
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    DelimitedTextReader reader(settings(QStringLiteral(","), 1, 1));
    QStringList texts;
    QVERIFY(reader.ReadColumn(buffer, 0, texts));
    QCOMPARE(texts, QStringList({QStringLiteral("10:30"), QStringLiteral("\u00E9"), QString()}));
    QCOMPARE(reader.GetWarnings(), QStringList(QStringLiteral("Attribute mis-match at line 5")));
    for (const int column : {-1, 2}) {
        buffer.seek(0);
        QVERIFY(!reader.ReadColumn(buffer, column, texts));
        QCOMPARE(reader.GetError(), QStringLiteral("There is no column %1").arg(column));
    }
}

QTEST_GUILESS_MAIN(TestDelimitedTextReader)
#include "tst_delimitedtextreader.moc"
