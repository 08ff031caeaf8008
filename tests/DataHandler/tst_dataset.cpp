#include "testdata.h"

#include <QTest>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>

namespace
{

using Values = std::vector<double>;

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
    void rangesFollowChanges();
    void rangesAsAWalkFindsThem();
    void axisRangesOverride();
    void looksUp();
    void removesAttributes();
    void raggedRowsReadAsMissing();
    void changesAsAListOfRowsWould();
    void refusesColumnsOfAnotherLength();
    void rowObjectsStay();
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

void TestDataSet::rangesFollowChanges()
{
    const auto data = MakeDataSet("1 2\n3 4");
    data->GetRow(0)->SetValue(1, 8.0);
    QCOMPARE(data->GetRawMax(1), 4.0F);
    data->ComputeRanges();
    QCOMPARE(data->GetRawMax(1), 8.0F);
    data->ReplaceColumn(1, DataColumn(2, 5.0));
    data->GetRow(1)->AddValue(6.0);
    data->AddAttribute(QStringLiteral("new"), ATTRIBUTE_OTHER);
    QCOMPARE(data->GetRawMax(2), DataSet::GetInitialMax());
    data->ComputeRanges();
    QCOMPARE(QPointF(data->GetRawMin(1), data->GetRawMax(1)), QPointF(5, 5));
    QCOMPARE(data->GetRawMax(2), 6.0F);
    // Out of step after a removal, until they are taken anew.
    data->RemoveAttribute(0);
    QCOMPARE(data->GetRawMax(0), 3.0F);
    data->ComputeRanges();
    QCOMPARE(QPointF(data->GetRawMax(0), data->GetRawMax(1)), QPointF(5, 6));
    auto* row = new DataRow;
    row->AddValue(-7.0);
    data->AddRow(row);
    data->ComputeRanges();
    QCOMPARE(data->GetRawMin(0), -7.0F);
}

// Step by step as the ranges are defined; to the sign of a zero, which shows in a label.
void TestDataSet::rangesAsAWalkFindsThem()
{
    const double values[] = {0.0, -0.0, 1e-60, -1e-60, 1e-46, 1.0, -1.0, 1e39, -1e39, 0.1, NAN};
    std::mt19937 random(9);
    for (int run = 0; run < 20000; ++run) {
        Values column(random() % 80);
        const size_t kinds = 1 + random() % std::size(values);
        for (double& value : column)
            value = values[random() % kinds];
        ValueRange walked;
        for (const double value : column) {
            if (double(walked.m_Minimum) > value)
                walked.m_Minimum = float(value);
            if (value > double(walked.m_Maximum))
                walked.m_Maximum = float(value);
        }
        const ValueRange range = ComputeValueRange(column);
        QCOMPARE(range.m_Minimum, walked.m_Minimum);
        QCOMPARE(std::signbit(range.m_Minimum), std::signbit(walked.m_Minimum));
        QCOMPARE(range.m_Maximum, walked.m_Maximum);
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
    const ConstSpan<double> column = data->GetColumn(1);
    QCOMPARE(Values(column.begin(), column.end()), Values({2.0, 4.0, 6.0}));
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

// A data set, and beside it the list of rows that it stands for.
class TwinTables
{
public:
    static constexpr int ChangeCount = 9;

    int GetRowCount() const { return m_Data.GetRowCount(); }
    int GetAttributeCount() const { return m_Data.GetAttributeCount(); }

    // kind: of change; row and attribute may lie beyond the end. values: one for each row.
    void Change(int kind, int row, int attribute, const Values& values)
    {
        const Values some(values.begin(), values.begin() + row);
        if (kind == 0 || row == GetRowCount())
            addRow(some);
        else if (kind < 5)
            changeRow(kind, row, attribute, some);
        else if (kind == 5)
            addColumn(values, m_Data.AddColumn(QString(), 15, DataColumn(values)));
        else if (kind == 6)
            addPartOfColumn(some);
        else if (kind == 7 && m_Data.ReplaceColumn(attribute, DataColumn(values)))
            for (size_t i = 0; i < m_Rows.size(); ++i)
                set(m_Rows[i], attribute, values[i]);
        else if (kind == 8)
            removeColumn(attribute);
    }

    QString DataText()
    {
        QString text;
        for (int row = 0; row < GetRowCount(); ++row) {
            text += QString::number(m_Data.GetRow(row)->GetValueCount()) + QLatin1Char(':');
            for (int i = 0; i < GetAttributeCount(); ++i)
                text += QString::number(m_Data.GetColumn(i)[row]) + QLatin1Char(' ');
            text += QString::number(m_Data.GetRow(row)->GetValue(GetAttributeCount()));
        }
        return text;
    }

    QString PlainText() const
    {
        QString text;
        for (const Values& row : m_Rows) {
            Values values = row;
            values.resize(size_t(GetAttributeCount() + 1), NAN);
            text += QString::number(row.size()) + QLatin1Char(':');
            for (int i = 0; i < GetAttributeCount(); ++i)
                text += QString::number(values[size_t(i)]) + QLatin1Char(' ');
            text += QString::number(values.back());
        }
        return text;
    }

private:
    static void set(Values& row, int attribute, double value)
    {
        if (size_t(attribute) < row.size())
            row[size_t(attribute)] = value;
    }

    static void remove(Values& row, int attribute)
    {
        if (size_t(attribute) < row.size())
            row.erase(row.begin() + attribute);
    }

    void addRow(const Values& values)
    {
        auto* row = new DataRow;
        row->SetValues(values.data(), int(values.size()));
        m_Data.AddRow(row);
        m_Rows.push_back(values);
    }

    void changeRow(int kind, int index, int attribute, const Values& values)
    {
        DataRow& row = *m_Data.GetRow(index);
        Values& plain = m_Rows[size_t(index)];
        if (kind == 1) {
            row.AddValue(0.5);
            plain.push_back(0.5);
        } else if (kind == 2) {
            row.RemoveValue(attribute);
            remove(plain, attribute);
        } else if (kind == 3) {
            row.SetValue(attribute, 0.25);
            set(plain, attribute, 0.25);
        } else {
            row.SetValues(values.data(), int(values.size()));
            plain = values;
        }
    }

    void addColumn(const Values& values, int index)
    {
        QCOMPARE(index, GetAttributeCount() - 1);
        for (size_t i = 0; i < values.size(); ++i)
            m_Rows[i].push_back(values[i]);
    }

    void addPartOfColumn(const Values& values)
    {
        m_Data.AddAttribute(QString(), 15);
        m_Data.AppendValues(DataColumn(values));
        addColumn(values, GetAttributeCount() - 1);
    }

    void removeColumn(int attribute)
    {
        m_Data.RemoveAttribute(attribute);
        for (Values& row : m_Rows)
            remove(row, attribute);
    }

    DataSet m_Data;
    std::vector<Values> m_Rows;
};

void TestDataSet::changesAsAListOfRowsWould()
{
    std::mt19937 random(3);
    const auto choose = [&](int count) { return int(random() % unsigned(count)); };
    for (int run = 0; run < 300; ++run) {
        TwinTables tables;
        for (int step = 0; step < 40; ++step) {
            Values values(size_t(tables.GetRowCount()));
            std::iota(values.begin(), values.end(), 100 * step);
            tables.Change(choose(TwinTables::ChangeCount), choose(tables.GetRowCount() + 1),
                          choose(tables.GetAttributeCount() + 2), values);
            QCOMPARE(tables.DataText(), tables.PlainText());
        }
    }
}

void TestDataSet::refusesColumnsOfAnotherLength()
{
    const auto data = MakeDataSet("1 2\n3 4");
    QCOMPARE(data->AddColumn(absent, ATTRIBUTE_OTHER, DataColumn(3)), -1);
    QVERIFY(!data->ReplaceColumn(0, DataColumn(1)));
    QVERIFY(!data->ReplaceColumn(2, DataColumn(2)));
    QCOMPARE(data->GetAttributeCount(), 2);
    QCOMPARE(data->GetColumn(-1).size() + data->GetColumn(2).size(), 0);
    // An empty data set takes its rows from the first column.
    DataSet empty;
    QCOMPARE(empty.AddColumn(absent, ATTRIBUTE_ACC_X, DataColumn(3, 7.0)), 0);
    QCOMPARE(empty.GetRow(2)->GetLastValue(), 7.0);
    QCOMPARE(empty.GetAttributeIndexByType(ATTRIBUTE_ACC_X), 0);
}

void TestDataSet::rowObjectsStay()
{
    const auto data = MakeColumn(Values(1000, 1.0));
    auto* loose = new DataRow;
    loose->AddValue(5.0);
    loose->SetLabel(QStringLiteral("late"));
    const DataRow* early = data->GetRow(3);
    data->AddRow(loose);
    QCOMPARE(data->GetRow(1000), loose);
    QCOMPARE(data->GetRowIndex(loose), 1000);
    QCOMPARE(loose->GetLabel(), QStringLiteral("late"));
    QCOMPARE(loose->GetFirstValue(), 5.0);
    data->ReplaceColumn(0, DataColumn(1001, 2.0));
    QCOMPARE(data->GetRow(3), early);
    QCOMPARE(early->GetFirstValue(), 2.0);
    const DataRow stray;
    const auto other = MakeColumn({1.0});
    QCOMPARE(data->GetRowIndex(&stray), -1);
    QCOMPARE(data->GetRowIndex(other->GetRow(0)), -1);
}

void TestDataSet::labels()
{
    DataRow loose;
    QCOMPARE(loose.GetLabel(), QString());
    loose.SetLabel(QStringLiteral("noon"));
    QCOMPARE(loose.GetLabel(), QStringLiteral("noon"));

    const auto data = MakeDataSet("1\n2\n3\n4\n5");
    const auto labels = [&] {
        QStringList list;
        for (int row = 0; row < 5; ++row)
            list.append(data->GetRow(row)->GetLabel());
        return list.join(QLatin1Char(' '));
    };
    const auto find = [&](const char* label) {
        return data->FindRowByLabel(QString::fromLatin1(label));
    };
    // Numbers, some taken away and some brought by other rows; the first row of a label counts.
    data->GetRow(1)->SetLabel(QStringLiteral("5"));
    data->GetRow(2)->SetLabel(QString());
    data->GetRow(3)->SetLabel(QStringLiteral("1"));
    QCOMPARE(labels(), QStringLiteral("1 5  1 5"));
    QCOMPARE((QList<int>{find("1"), find("5"), find(""), find("2"), find("05"), find("6")}),
             (QList<int>{0, 1, 2, -1, -1, -1}));
    data->GetRow(1)->SetLabel(QStringLiteral("2"));
    data->GetRow(2)->SetLabel(QStringLiteral("3"));
    QCOMPARE((QList<int>{find("5"), find(""), find("3")}), (QList<int>{4, -1, 2}));
    data->NumberRows();
    QCOMPARE(labels(), QStringLiteral("1 2 3 4 5"));
    // Rows that nobody has numbered have no label.
    data->AddRow(new DataRow);
    QCOMPARE(find(""), 5);
    QCOMPARE(find("6"), -1);
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
