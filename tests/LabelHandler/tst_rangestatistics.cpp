#include "rangestatistics.h"
#include "segmenttext.h"
#include "testdata.h"

#include <QTest>

namespace
{

const double noNumber = std::numeric_limits<double>::quiet_NaN();

QString toText(std::initializer_list<double> numbers)
{
    QStringList texts;
    for (const double number : numbers)
        texts.append(QString::number(number, 'g', 9));
    return texts.join(QLatin1Char(' '));
}

} // namespace

/// Expected deviations are those of Python's statistics.pstdev.
class TestRangeStatistics : public QObject
{
    Q_OBJECT
private slots:
    void ofRows_data();
    void ofRows();
    void ofBehaviors_data();
    void ofBehaviors();
};

void TestRangeStatistics::ofRows_data()
{
    QTest::addColumn<std::vector<double>>("values");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("expected");
    const std::vector<double> plain{9, 1.5, -2, 4, 0.25, -9};
    const double offset = 1e9;
    QTest::newRow("end row is left out") << plain << 1 << 5 << "4 -2 0.9375 2.16776815";
    QTest::newRow("negative only") << std::vector<double>{-3, -1} << 0 << 2 << "-1 -3 -2 1";
    QTest::newRow("one row") << plain << 2 << 3 << "-2 -2 -2 0";
    QTest::newRow("no row") << plain << 3 << 3 << "4 4 nan nan";
    QTest::newRow("beyond the data") << plain << 4 << 100 << "0.25 -9 -4.375 4.625";
    QTest::newRow("wholly beyond the data") << plain << 6 << 8 << "nan nan nan nan";
    QTest::newRow("large offset") << std::vector<double>{offset + 4, offset + 7, offset + 13,
                                                         offset + 16}
                                  << 0 << 4 << "1.00000002e+09 1e+09 1.00000001e+09 4.74341649";
    QTest::newRow("starts with a gap")
        << std::vector<double>{noNumber, 3, noNumber, 5} << 0 << 4 << "5 3 nan nan";
}

void TestRangeStatistics::ofRows()
{
    QFETCH(std::vector<double>, values);
    QFETCH(int, from);
    QFETCH(int, to);
    const auto data = MakeColumn(values);
    const auto s = ComputeRangeStatistics(*data, 0, from, to);
    QTEST(toText({s.m_Maximum, s.m_Minimum, s.m_Mean, s.m_StandardDeviation}), "expected");
}

void TestRangeStatistics::ofBehaviors_data()
{
    QTest::addColumn<QList<int>>("instances");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << QList<int>{} << "0 0 0";
    // Means 1.5 and -6; the mean over all rows would be -1.
    QTest::newRow("short ones weigh as much") << QList<int>{0, 2} << "9 -8 -2.25";
    QTest::newRow("without rows") << QList<int>{0, 1} << "9 -6 nan";
    QTest::newRow("starts without rows") << QList<int>{1, 0} << "20 -6 nan";
}

void TestRangeStatistics::ofBehaviors()
{
    QFETCH(QList<int>, instances);
    const auto data = MakeColumn({9, -6, 1, 2, 20, -4, -8});
    CutSegment segments[] = {{0, 4}, {4, 4}, {5, 7}};
    BehaviorLabel label;
    for (const int instance : instances)
        label.AddLabelQuietly(new LabelInstance(&segments[instance]));
    const auto statistics = ComputeBehaviorStatistics(*data, label, 0);
    QTEST(toText({statistics.m_Maximum, statistics.m_Minimum, statistics.m_Mean}), "expected");
}

QTEST_GUILESS_MAIN(TestRangeStatistics)
#include "tst_rangestatistics.moc"
