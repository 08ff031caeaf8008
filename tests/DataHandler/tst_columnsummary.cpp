#include "columnsummary.h"
#include "testdata.h"
#include <QtTest>
#include <cmath>
#include <limits>

namespace
{

constexpr double missing = std::numeric_limits<double>::quiet_NaN();

// Row by row, sums in higher precision.
ColumnExtremes walk(const std::vector<double>& values, int from, int to)
{
    ColumnExtremes found;
    long double sum = 0;
    for (int row = from; row < to; ++row) {
        const double value = values[size_t(row)];
        if (!std::isfinite(value)) {
            found.m_HasGap = true;
            continue;
        }
        if (found.m_Count == 0 || value < values[size_t(found.m_LowRow)])
            found.m_LowRow = row;
        if (found.m_Count == 0 || value > values[size_t(found.m_HighRow)])
            found.m_HighRow = row;
        ++found.m_Count;
        sum += value;
    }
    found.m_Sum = double(sum);
    if (found.m_Count > 0) {
        found.m_Low = values[size_t(found.m_LowRow)];
        found.m_High = values[size_t(found.m_HighRow)];
    }
    return found;
}

void compare(const ColumnExtremes& found, const ColumnExtremes& expected)
{
    QCOMPARE(found.m_LowRow, expected.m_LowRow);
    QCOMPARE(found.m_HighRow, expected.m_HighRow);
    QCOMPARE(found.m_Low, expected.m_Low);
    QCOMPARE(found.m_High, expected.m_High);
    QCOMPARE(found.m_HasGap, expected.m_HasGap);
    QCOMPARE(found.m_Count, expected.m_Count);
    // Rounding of some thousand additions of numbers up to 11.
    QVERIFY(std::abs(found.m_Sum - expected.m_Sum) < 1e-9);
}

} // namespace

class TestColumnSummary : public QObject
{
    Q_OBJECT
private slots:
    void findsExtremesOfAnySpan();
    void reportsGapsAndFollowsChanges();
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
                const int end = std::min(to, rows);
                compare(summary.GetExtremes(from, end), walk(values, from, end));
            }
        }
    }
}

void TestColumnSummary::reportsGapsAndFollowsChanges()
{
    std::vector<double> values(64, 2.0);
    // In the middle of a block that has values on either side, a whole block, and no number.
    values[5] = missing;
    std::fill_n(values.begin() + 16, 16, missing);
    values[40] = -std::numeric_limits<double>::infinity();
    const auto data = MakeColumn(values);
    const ColumnSummary* summary = &data->GetColumnSummary(0);
    for (int from = 0; from < 64; from += 16) {
        for (int to = from + 16; to <= 64; to += 16)
            compare(summary->GetExtremes(from, to), walk(values, from, to));
    }
    data->GetRow(20)->SetValue(0, 9.0);
    QCOMPARE(&data->GetColumnSummary(0), summary);
    data->ComputeRanges();
    QCOMPARE(data->GetColumnSummary(0).GetExtremes(0, 32).m_HighRow, 20);
    // What happens to other columns leaves it as it is.
    summary = &data->GetColumnSummary(0);
    data->AddColumn(QStringLiteral("other"), ATTRIBUTE_OTHER, DataColumn(64, 1.0));
    data->ComputeRanges();
    QCOMPARE(&data->GetColumnSummary(0), summary);
    data->ReplaceColumn(0, DataColumn(64, 3.0));
    QCOMPARE(data->GetColumnSummary(0).GetExtremes(0, 64).m_Sum, 192.0);
}

QTEST_MAIN(TestColumnSummary)
#include "tst_columnsummary.moc"
