#include "columnsummary.h"
#include "testdata.h"
#include <QtTest>
#include <cmath>
#include <limits>

class TestColumnSummary : public QObject
{
    Q_OBJECT
private slots:
    void findsExtremesOfAnySpan();
    void reportsGapsAndFollowsChanges();

private:
    static constexpr double missing = std::numeric_limits<double>::quiet_NaN();
};

void TestColumnSummary::findsExtremesOfAnySpan()
{
    for (const int rows : {1, 15, 16, 17, 256, 257, 4096 + 5, 70000}) {
        std::vector<double> values;
        for (int i = 0; i < rows; ++i)
            values.push_back(i % 23 == 5 ? missing : std::sin(0.37 * i * i) * (i % 11));
        const auto data = MakeColumn(values);
        const ColumnSummary summary(data->GetColumn(0));
        const int step = std::max(rows / 9 / 16, 1) * 16;
        for (int from = 0; from < rows; from += step) {
            for (int to = from + 16; to < rows + 16; to += step) {
                ColumnExtremes expected;
                for (int row = from; row < std::min(to, rows); ++row)
                    expected.Add(row, values[size_t(row)]);
                const ColumnExtremes found = summary.GetExtremes(from, std::min(to, rows));
                QCOMPARE(found.m_LowRow, expected.m_LowRow);
                QCOMPARE(found.m_HighRow, expected.m_HighRow);
                QCOMPARE(found.m_Low, expected.m_Low);
                QCOMPARE(found.m_High, expected.m_High);
                QCOMPARE(found.m_HasGap, expected.m_HasGap);
            }
        }
    }
}

void TestColumnSummary::reportsGapsAndFollowsChanges()
{
    std::vector<double> values(64, 2.0);
    std::fill_n(values.begin() + 16, 16, missing);
    values[40] = -std::numeric_limits<double>::infinity();
    const auto data = MakeColumn(values);
    const ColumnSummary& summary = data->GetColumnSummary(0);
    QVERIFY(!summary.GetExtremes(0, 16).m_HasGap);
    QCOMPARE(summary.GetExtremes(16, 32).m_LowRow, -1);
    QVERIFY(summary.GetExtremes(32, 48).m_HasGap);
    QCOMPARE(summary.GetExtremes(0, 64).m_Low, 2.0);
    data->GetRow(20)->SetValue(0, 9.0);
    data->ComputeRanges();
    QCOMPARE(data->GetColumnSummary(0).GetExtremes(0, 32).m_HighRow, 20);
}

QTEST_MAIN(TestColumnSummary)
#include "tst_columnsummary.moc"
