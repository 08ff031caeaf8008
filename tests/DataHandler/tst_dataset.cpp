#include "testdata.h"

#include <QTest>
#include <cfloat>
#include <cmath>
#include <limits>
#include <random>

namespace
{

const QString absent = QStringLiteral("absent");

QStringList names(const DataSet& data)
{
    QStringList list;
    for (int i = 0; i < data.GetAttributeCount(); ++i)
        list.append(data.GetAttributeName(i));
    return list;
}

} // namespace

class TestDataSet : public QObject
{
    Q_OBJECT
private slots:
    void rangesHaveOddStarts_data();
    void rangesHaveOddStarts();
    void rangesAreThoseOfSinglePrecisionStepByStep();
    void axisRangesOverride();
    void looksUp();
    void removesAttributes();
    void raggedRowsReadAsMissing();
    void rowsEditTheirValues();
    void labels();
    void findsRows_data();
    void findsRows();
    void namesTypes();
};

void TestDataSet::rangesHaveOddStarts_data()
{
    QTest::addColumn<QString>("rows");
    QTest::addColumn<float>("low");
    QTest::addColumn<float>("high");
    QTest::newRow("negative") << QStringLiteral("-3\n-1") << -3.0F << 1.1754944e-38F;
    QTest::newRow("zero") << QStringLiteral("0") << 0.0F << 1.1754944e-38F;
    QTest::newRow("no rows") << QString() << 3.4028235e38F << 1.1754944e-38F;
    QTest::newRow("not a number") << QStringLiteral("nan\n2\nnan") << 2.0F << 2.0F;
    QTest::newRow("only not a number") << QStringLiteral("nan") << 3.4028235e38F << 1.1754944e-38F;
    QTest::newRow("infinite") << QStringLiteral("inf\n-inf") << -INFINITY << INFINITY;
}

void TestDataSet::rangesHaveOddStarts()
{
    QFETCH(QString, rows);
    const auto data = MakeDataSet(rows.toUtf8().constData(), {QStringLiteral("only")});
    QTEST(data->GetRawMin(0), "low");
    QTEST(data->GetRawMax(0), "high");
    QCOMPARE(data->GetMinValue(0), double(data->GetRawMin(0)));
    QCOMPARE(data->GetMaxValue(0), double(data->GetRawMax(0)));
}

// Value by value against a range that is narrowed at every step.
void TestDataSet::rangesAreThoseOfSinglePrecisionStepByStep()
{
    std::mt19937_64 random(3);
    for (int run = 0; run < 200; ++run) {
        DataSet data;
        data.SetAttributeCount(1);
        float low = FLT_MAX;
        float high = FLT_MIN;
        // Neighbouring doubles, which narrowing takes together.
        std::uniform_real_distribution<double> values(-1.0 - 1e-7, -1.0 + 1e-7);
        for (int i = 0; i < 20; ++i) {
            const double value = run % 2 ? values(random) : -values(random);
            low = double(low) > value ? float(value) : low;
            high = value > double(high) ? float(value) : high;
            auto* row = new DataRow;
            row->AddValue(value);
            data.AddRow(row);
        }
        data.UpdateRanges();
        QCOMPARE(data.GetRawMin(0), low);
        QCOMPARE(data.GetRawMax(0), high);
    }
}

void TestDataSet::axisRangesOverride()
{
    const auto data = MakeDataSet("1 2\n9 4");
    data->SetAxisRanges({{0, {2.0, 5.0}}});
    QCOMPARE(data->GetMinValue(0), 2.0);
    QCOMPARE(data->GetMaxValue(0), 5.0);
    QCOMPARE(data->GetRawMax(0), 9.0F);
    QCOMPARE(data->GetMaxValue(1), 4.0);
    QCOMPARE(data->GetAxisRange(1), qMakePair(0.0, 0.0));
    data->SetAxisRanges({});
    QCOMPARE(data->GetMaxValue(0), 9.0);
    data->SetZeroLines({{1, true}});
    QVERIFY(data->GetZeroLine(1) && !data->GetZeroLine(0));
}

void TestDataSet::looksUp()
{
    const auto data = MakeDataSet("1 2\n3 4\n5 6", {QStringLiteral("x"), QStringLiteral("y")});
    data->SetAttributeTypes(new QList<AttributeType>{ATTRIBUTE_ACC_X, ATTRIBUTE_ACC_Y});
    QCOMPARE(data->GetAttributeIndex(QStringLiteral("y")), 1);
    QCOMPARE(data->GetAttributeIndex(QStringLiteral("Y")), -1);
    QCOMPARE(data->GetAttributeIndexByType(ATTRIBUTE_ACC_Y), 1);
    QCOMPARE(data->GetAttributeIndexByType(ATTRIBUTE_ACC_Z), -1);
    QCOMPARE(data->GetRowIndexByLabel(QStringLiteral("3")), 2);
    QCOMPARE(data->GetRowIndexByLabel(absent), 0);
    QCOMPARE(data->GetRowIndex(data->GetRow(1)), 1);
    QCOMPARE(data->GetRowIndex(nullptr), -1);
    QCOMPARE(data->CopyColumn(1), std::vector<double>({2.0, 4.0, 6.0}));
}

void TestDataSet::removesAttributes()
{
    const auto data = MakeDataSet("1 2 3 4\n5 6 7 8");
    data->SetAttributeTypes(new QList<AttributeType>{2, 3, 4, 14});
    data->RemoveAttribute(absent);
    QCOMPARE(data->GetAttributeCount(), 4);
    data->RemoveAttribute(2);
    QCOMPARE(names(*data).join(QString()), QStringLiteral("ABD"));
    QCOMPARE(data->GetRow(1)->GetValue(2), 8.0);
    QCOMPARE(data->GetRow(1)->GetValueCount(), 3);
    // The type list stays as it was, and so points at the column behind.
    QCOMPARE(data->GetAttributeIndexByType(4), 2);
    data->RemoveAttribute(QStringLiteral("A"));
    QCOMPARE(data->GetRow(0)->GetFirstValue(), 2.0);
    QCOMPARE(data->GetRow(0)->GetLastValue(), 4.0);
    data->RemoveAttribute(-1);
    data->RemoveAttribute(9);
    QCOMPARE(data->GetAttributeCount(), 2);
}

void TestDataSet::raggedRowsReadAsMissing()
{
    // The second and third row lack one and two values, the last has one too many.
    const auto data = MakeDataSet("1 2 3\n4 5\n6\n7 8 9 10");
    for (int column = 3; column < 20; ++column)
        data->AddAttribute(QStringLiteral("more"), ATTRIBUTE_OTHER);
    for (int column = 3; column < 20; ++column)
        QVERIFY(std::isnan(data->GetRow(0)->GetValue(column)));
    for (int i = 0; i < data->GetRowCount(); ++i)
        data->GetRow(i)->AddValue(100.0);
    QCOMPARE(data->GetRow(0)->GetValue(3), 100.0);
    QCOMPARE(data->GetRow(2)->GetValue(1), 100.0);
    QVERIFY(std::isnan(data->GetRow(2)->GetValue(2)));
    QCOMPARE(data->GetRow(3)->GetValue(4), 100.0);
    data->ComputeRanges();
    QCOMPARE(data->GetRawMax(2), 100.0F);
    // What a removal leaves behind the last value is missing, not the old value.
    data->RemoveAttribute(0);
    QVERIFY(std::isnan(data->GetRow(1)->GetValue(2)));
    QCOMPARE(data->GetRow(1)->GetValueCount(), 2);
}

void TestDataSet::rowsEditTheirValues()
{
    DataRow row;
    row.SetValues(QStringList{QStringLiteral("1"), QStringLiteral("x"), QStringLiteral(" 3e1")});
    QCOMPARE(row.GetValue(1), 0.0);
    QCOMPARE(row.GetLastValue(), 30.0);
    row.SetValue(1, 7.0);
    row.SetValue(3, 8.0);
    row.SetValue(-1, 8.0);
    row.RemoveValue(3);
    QCOMPARE(row.GetValueCount(), 3);
    QCOMPARE(row.GetValue(1), 7.0);
    row.SetValues(QStringList{QStringLiteral("4")});
    QCOMPARE(row.GetValueCount(), 1);
    QVERIFY(std::isnan(row.GetValue(2)));
}

void TestDataSet::labels()
{
    DataRow row;
    QCOMPARE(row.GetLabel(), QString());
    QVERIFY(row.HasLabel(QString()));
    row.SetNumberLabel(0);
    QCOMPARE(row.GetLabel(), QStringLiteral("0"));
    row.SetNumberLabel(std::numeric_limits<int>::max());
    QVERIFY(row.HasLabel(QStringLiteral("2147483647")));
    row.SetLabel(QStringLiteral("noon"));
    row.SetLabel(QStringLiteral("10:30"));
    QVERIFY(row.HasLabel(QStringLiteral("10:30")));
    row.SetLabel(QString());
    QCOMPARE(row.GetLabel(), QString());
}

void TestDataSet::findsRows_data()
{
    QTest::addColumn<double>("d");
    QTest::addColumn<bool>("useD");
    QTest::addColumn<double>("e");
    QTest::addColumn<bool>("useE");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("found");
    QTest::newRow("first") << 0.0 << false << 0.0 << false << 0 << 1;
    QTest::newRow("from there") << 0.0 << false << 0.0 << false << 1 << 1;
    QTest::newRow("behind it") << 0.0 << false << 0.0 << false << 2 << 2;
    QTest::newRow("negative start") << 0.0 << false << 0.0 << false << -5 << 1;
    QTest::newRow("with d") << 5.0 << true << 0.0 << false << 0 << 2;
    QTest::newRow("with e") << 0.0 << false << 8.0 << true << 0 << 3;
    QTest::newRow("with both") << 5.0 << true << 8.0 << true << 0 << 3;
    QTest::newRow("no match") << 9.0 << true << 0.0 << false << 0 << -1;
    QTest::newRow("past the end") << 0.0 << false << 0.0 << false << 4 << -1;
}

void TestDataSet::findsRows()
{
    QFETCH(double, d);
    QFETCH(bool, useD);
    QFETCH(double, e);
    QFETCH(bool, useE);
    QFETCH(int, start);
    const auto data = MakeDataSet("1 2 4 4 7\n1 2 3 4 7\n1 2 3 5 7\n1 2 3 5 8");
    const DataRow* row = data->FindRow(0, 1, 2, 1.0, 2.0, 3.0, 3, d, useD, 4, e, useE, start);
    QTEST(data->GetRowIndex(row), "found");
}

void TestDataSet::namesTypes()
{
    QCOMPARE(AttributeTypeName(2), AttributeTypeName(8));
    QCOMPARE(AttributeTypeName(11), QStringLiteral("Mag X"));
    QCOMPARE(AttributeTypeName(15), QStringLiteral("Other"));
    QCOMPARE(AttributeTypeName(16), QStringLiteral("N/A"));
    QCOMPARE(AttributeTypeName(-1), QStringLiteral("N/A"));
    QCOMPARE(AttributeTypeFromName(QStringLiteral("Com Y")), 12);
    QCOMPARE(AttributeTypeFromName(QStringLiteral("Com Z")), 15);
    QCOMPARE(AttributeTypeFromName(QStringLiteral("Com_Z")), 13);
    QCOMPARE(AttributeTypeFromName(QStringLiteral("Date")), 15);
    QCOMPARE(StandardAttributeName(15), QStringLiteral("TG_Presure"));
    QCOMPARE(StandardAttributeName(29), QStringLiteral("DR_Latitude"));
    QCOMPARE(StandardAttributeName(42), QStringLiteral("Speed Coefficent"));
    QCOMPARE(StandardAttributeName(43), QStringLiteral("Error"));
}

QTEST_GUILESS_MAIN(TestDataSet)
#include "tst_dataset.moc"
