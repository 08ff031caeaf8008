#include "testdata.h"

#include <QTest>
#include <cmath>
#include <limits>

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
    void axisRangesOverride();
    void looksUp();
    void removesAttributes();
    void raggedRowsReadAsMissing();
    void labels();
    void findsRows();
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

void TestDataSet::findsRows()
{
    const auto data = MakeDataSet("1 2 4 4 7\n1 2 3 4 7\n1 2 3 5 7\n1 2 3 5 8");
    const auto find = [&](double d, double e, int start) {
        // Below 0 stands for a value that is not asked for.
        return data->GetRowIndex(
            data->FindRow(0, 1, 2, 1.0, 2.0, 3.0, 3, d, d >= 0.0, 4, e, e >= 0.0, start));
    };
    QCOMPARE(find(-1.0, -1.0, -5), 1);
    QCOMPARE(find(-1.0, -1.0, 1), 1);
    QCOMPARE(find(-1.0, -1.0, 2), 2);
    QCOMPARE(find(5.0, -1.0, 0), 2);
    QCOMPARE(find(-1.0, 8.0, 0), 3);
    QCOMPARE(find(5.0, 8.0, 0), 3);
    QCOMPARE(find(9.0, -1.0, 0), -1);
    QCOMPARE(find(-1.0, -1.0, 4), -1);
}

QTEST_GUILESS_MAIN(TestDataSet)
#include "tst_dataset.moc"
