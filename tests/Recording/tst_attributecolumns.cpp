#include "attributecolumns.h"
#include "testdata.h"
#include <QTest>

class TestAttributeColumns : public QObject
{
    Q_OBJECT
private slots:
    void comeAndGoWithWhatBelongsToThem();
    void refuseOtherLengths();

private:
    static NamedColumn column(const char* name, const std::vector<double>& values)
    {
        const int size = int(values.size());
        return {QLatin1String(name), DataColumn(ConstSpan<double>(values.data(), size))};
    }
};

void TestAttributeColumns::comeAndGoWithWhatBelongsToThem()
{
    const auto data = MakeDataSet("1 2 3\n4 5 6");
    data->SetAttributeTypes(
        new QList<AttributeType>{AttributeType(2), AttributeType(3), AttributeType(4)});
    data->SetAxisRanges({{1, {-7, 7}}, {2, {0, 9}}});
    data->SetZeroLines({{0, true}, {1, true}});
    AttributeColumns columns(data.get());
    columns.Remove({QStringLiteral("B"), QStringLiteral("none")});
    QCOMPARE(data->GetAttributeNames(), QStringList({QStringLiteral("A"), QStringLiteral("C")}));
    // C is now where B was, with its own type, limits and line.
    QCOMPARE(data->GetAttributeType(1), AttributeType(4));
    QCOMPARE(data->GetMaxValue(1), 9.0);
    QCOMPARE(data->GetRawMax(1), 6.0F);
    QVERIFY(data->GetZeroLine(0) && !data->GetZeroLine(1));

    std::vector<NamedColumn> added;
    added.push_back(column("D", {8, 9}));
    added.push_back(column("B", {20, 30}));
    QVERIFY(columns.Add(std::move(added)));
    QCOMPARE(data->GetRow(1)->GetValue(3), 30.0);
    QCOMPARE(data->GetRawMax(3), 30.0F);
    QCOMPARE(data->GetAxisRange(3), (QPair<double, double>(-7, 7)));
    QVERIFY(data->GetZeroLine(3));
    QCOMPARE(data->GetAxisRange(2), (QPair<double, double>(0, 0)));

    std::vector<NamedColumn> replaced;
    replaced.push_back(column("C", {1, 2}));
    QVERIFY(columns.Replace(std::move(replaced)));
    QCOMPARE(data->GetAttributeIndex(QStringLiteral("C")), 3);
    QCOMPARE(data->GetMaxValue(3), 9.0);
    QCOMPARE(data->GetAxisRange(2), (QPair<double, double>(-7, 7)));
}

void TestAttributeColumns::refuseOtherLengths()
{
    const auto data = MakeDataSet("1\n4");
    AttributeColumns columns(data.get());
    for (const bool replace : {false, true}) {
        std::vector<NamedColumn> wrong;
        wrong.push_back(column("A", {1, 2}));
        wrong.push_back(column("B", {1}));
        QVERIFY(!(replace ? columns.Replace(std::move(wrong)) : columns.Add(std::move(wrong))));
        QCOMPARE(data->GetAttributeCount(), 1);
        QCOMPARE(data->GetRow(1)->GetValue(0), 4.0);
    }
}

QTEST_GUILESS_MAIN(TestAttributeColumns)
#include "tst_attributecolumns.moc"
