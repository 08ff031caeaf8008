#include "headerpresets.h"
#include "importfinish.h"
#include "testdata.h"
#include <QtTest>

namespace
{

QString toText(const ColumnHeaders& headers)
{
    QStringList columns;
    for (int i = 0; i < headers.m_Names.size(); ++i)
        columns.append(QStringLiteral("%1:%2").arg(headers.m_Names[i]).arg(headers.m_Types[i]));
    return columns.join(QLatin1Char(' '));
}

} // namespace

class TestHeaderPresets : public QObject
{
    Q_OBJECT
private slots:
    void presets_data();
    void presets();
    void finish_data();
    void finish();
};

void TestHeaderPresets::presets_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<int>("columns");
    QTest::addColumn<QString>("expected");
    const QString sensors = QStringLiteral("Acc_X:2 Acc_Y:3 Acc_Z:4 Comp_X:11 Comp_Y:12 Comp_Z:13");
    const QString clock = QStringLiteral("TG_Unknown:15 TG_Sec:15 TG_Min:15 TG_Hour:15");
    const auto row = [](const char* name, int preset, int columns, const QString& expected) {
        QTest::newRow(name) << preset << columns << expected;
    };
    row("1 one short", 0, 8,
        QStringLiteral("Col_1:15 Col_2:15 Col_3:15 Col_4:15 Col_5:15 Col_6:15 Col_7:15 Col_8:15"));
    row("1 wider", 0, 11,
        QStringLiteral("Date:0 Time:1 %1 TG_Presure:14 Col_9:15 Col_10:15").arg(sensors));
    row("2 wider", 1, 9, QStringLiteral("Time:1 %1 TG_Presure:14 Col_8:15").arg(sensors));
    row("3 some clock columns", 2, 9,
        sensors + QStringLiteral(" TG_Presure:14 TG_Unknown:15 TG_Sec:15"));
    row("3 wider", 2, 13,
        QStringLiteral("%1 TG_Presure:14 %2 Col_11:15 Col_12:15").arg(sensors, clock));
    row("4 wider", 3, 5, QStringLiteral("Acc_X:2 Acc_Y:3 Acc_Z:4 Col_3:15 Col_4:15"));
    row("no columns", 0, 0, QString());
}

void TestHeaderPresets::presets()
{
    QFETCH(int, preset);
    QFETCH(int, columns);
    QTEST(toText(PresetHeaders(preset, columns)), "expected");
}

void TestHeaderPresets::finish_data()
{
    QTest::addColumn<QString>("types");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<double>("first");
    QTest::newRow("neither") << "2 3 4 15"
                             << "c0:2 c1:3 c2:4 c3:15" << 0.0;
    QTest::newRow("date before time") << "0 1 2 3"
                                      << "c2:2 c3:3" << 2.0;
    QTest::newRow("apart") << "2 1 3 0"
                           << "c0:2 c2:3" << 0.0;
    QTest::newRow("second time column stays") << "1 2 1 15"
                                              << "c1:2 c2:1 c3:15" << 1.0;
}

void TestHeaderPresets::finish()
{
    QFETCH(QString, types);
    QFETCH(QString, expected);
    QFETCH(double, first);
    const auto data = MakeDataSet("0 1 2 3\n10 11 12 13\n");
    ColumnHeaders headers;
    for (const QString& type : types.split(QLatin1Char(' ')))
        headers.Append(QStringLiteral("c%1").arg(headers.m_Names.size()), type.toInt());
    FinishImport(*data, headers, 25);

    QCOMPARE(toText(headers), expected);
    const int count = headers.m_Names.size();
    QCOMPARE(data->GetAttributeCount(), count);
    for (int i = 0; i < count; ++i) {
        QCOMPARE(data->GetAttributeName(i), headers.m_Names[i]);
        QCOMPARE(data->GetAttributeType(i), headers.m_Types[i]);
    }
    QCOMPARE(data->GetRow(1)->GetValueCount(), count);
    QCOMPARE(data->GetRow(0)->GetFirstValue(), first);
    QCOMPARE(data->GetRow(1)->GetFirstValue(), first + 10);
    QCOMPARE(data->GetRow(1)->GetLabel(), QStringLiteral("2"));
    QCOMPARE(data->m_SamplingRate, 25);
}

QTEST_GUILESS_MAIN(TestHeaderPresets)
#include "tst_headerpresets.moc"
