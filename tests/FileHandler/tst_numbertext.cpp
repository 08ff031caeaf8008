#include "numbertext.h"
#include "shortdecimal.h"

#include <QTest>
#include <cmath>
#include <cstring>
#include <random>

namespace
{

// Equal bit by bit, but one not-a-number is as good as another.
bool isSame(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) || std::memcmp(&a, &b, sizeof a) == 0;
}

// The text read the fast way; what stands behind it looks like further digits.
bool readShort(const QByteArray& text, double& value)
{
    const QByteArray padded = text + QByteArray(ShortDecimal::Padding, '7');
    return ShortDecimal::Read(padded.constData(), padded.constData() + text.size(), value);
}

// Empty when both ways through a text agree with QString::toDouble, else what differs.
QString difference(const QByteArray& text)
{
    const double expected = QString::fromUtf8(text.constData(), text.size()).toDouble();
    const double number = NumberFromText({text.constData(), size_t(text.size())});
    if (!isSame(number, expected))
        return QStringLiteral("%1: %2 for %3")
            .arg(QString::fromUtf8(text))
            .arg(number)
            .arg(expected);
    double read = 0.0;
    if (readShort(text, read) && !isSame(read, expected))
        return QStringLiteral("%1: read %2").arg(QString::fromUtf8(text)).arg(read);
    return QString();
}

} // namespace

/// QString::toDouble decides what each text means.
class TestNumberText : public QObject
{
    Q_OBJECT
private slots:
    void means_data();
    void means();
    void meansTheSameForRandomTexts();
    void readsShortDecimals();
};

void TestNumberText::means_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArray words =
        "0|-0|+0|1|+1|-1|+-1|-+1|--1|- 1|+ 1|.|-.|1.|.5|-.5|+.5|1..2|1.2.3|1e5|1E5|1e+5|1e-5|1e|"
        "1e+|e5|.e5|1.e5|1 e5|1e400|-1e400|1e-400|-1e-400|5e-324|2e-324|1.7976931348623157e308|"
        "1.7976931348623159e308|inf|+inf|-inf|INF|Inf|infinity|nan|+nan|-nan|NaN|NAN|nan(1)|1,5|"
        "1,234.5|0x10|0x1p3|1f|1d|1L|1_0|| | 1|1 |\t1\v\f\r\n|1 2|\302\2401|1\342\200\203|"
        "\342\210\2221|\331\241|\357\274\221|\302\262|\377|1\377|12345678|1234567.1234567|"
        "12345678.1|1.12345678|0.1234567890123456789|123456789012345678901234567890|"
        "9007199254740993|00000000000000000000001.5|0.000000000000000000000000000001|21/11/2026";
    QList<QByteArray> texts = words.split('|');
    texts << QByteArray("1\0", 2) << QByteArray("\0001", 2) << QByteArray("1\0002", 3)
          << QByteArray(1000, '9') << "0." + QByteArray(900, '3');
    int number = 0;
    for (const QByteArray& text : qAsConst(texts))
        QTest::addRow("%d %.20s", number++, text.toPercentEncoding().constData()) << text;
}

void TestNumberText::means()
{
    QFETCH(QByteArray, text);
    QCOMPARE(difference(text), QString());
}

void TestNumberText::meansTheSameForRandomTexts()
{
    std::mt19937 random(20261121);
    const auto choose = [&](int count) { return int(random() % unsigned(count)); };
    const QByteArray alphabet = "0123456789012345678901234567890123456789...--+eE ,infa\xC2\xA0x";
    for (int i = 0; i < 200000; ++i) {
        QByteArray text;
        for (int length = choose(14); length >= 0; --length)
            text += alphabet[choose(alphabet.size())];
        const QByteArray decimal =
            QByteArray::number((choose(2000001) - 1000000) * 1e-4, 'g', 1 + choose(17));
        QCOMPARE(difference(text), QString());
        QCOMPARE(difference(decimal), QString());
    }
}

void TestNumberText::readsShortDecimals()
{
    // What recordings are made of must not take the slow way.
    for (const char* text : {"0.497185", "-1.11563", "7", "-0", "1023.25", ".5", "3.", "12345678",
                             "-0.00012345", "47.376888123", "1234567.12345678"}) {
        double value = 0.0;
        QVERIFY2(readShort(text, value), text);
    }
}

QTEST_GUILESS_MAIN(TestNumberText)
#include "tst_numbertext.moc"
