#include "localvariance.h"

#include "localvarianceextractor.h"
#include "scriptedprogress.h"
#include "testdata.h"
#include <QtTest>
#include <cmath>
#include <limits>
#include <optional>
#include <random>

namespace
{

constexpr double missing = std::numeric_limits<double>::quiet_NaN();

// Entries that nothing was written to take the last written one in front, or zero.
std::vector<float> filled(const std::vector<std::optional<float>>& written)
{
    std::vector<float> values;
    float last = 0.0F;
    for (const auto& value : written) {
        last = value.value_or(last);
        values.push_back(last);
    }
    return values;
}

// Block by block, each over the one before.
std::vector<float> plainMeans(const std::vector<double>& values, int window, int step)
{
    const int count = int(values.size());
    std::vector<std::optional<float>> written(values.size());
    for (int start = 0; start < count - window && step > 0; start += step) {
        float sum = 0.0F;
        for (int i = start; i < start + window; ++i)
            sum = float(double(sum) + values[size_t(i)]);
        for (int i = start; i < start + window; ++i)
            written[size_t(i)] = sum / float(window);
    }
    return filled(written);
}

std::vector<float> plainVariances(const std::vector<float>& values, int window)
{
    const int count = int(values.size());
    std::vector<std::optional<float>> written(values.size());
    for (int start = 0; start < count - window; ++start) {
        float sum = 0.0F;
        for (int i = start; i < start + window; ++i)
            sum += values[size_t(i)];
        const float mean = sum / float(window);
        float squares = 0.0F;
        for (int i = start; i < start + window; ++i)
            squares += (values[size_t(i)] - mean) * (values[size_t(i)] - mean);
        for (int i = start; i < start + window; ++i)
            written[size_t(i)] = squares / float(window);
    }
    return filled(written);
}

} // namespace

class TestLocalVariance : public QObject
{
    Q_OBJECT
private slots:
    void sumsInSinglePrecision_data();
    void sumsInSinglePrecision();
    void findsTransitions();
    void stops();
};

void TestLocalVariance::sumsInSinglePrecision_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("smoothing");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("window");
    QTest::newRow("as proposed") << 1000 << 10 << 5 << 100;
    QTest::newRow("step larger than window") << 203 << 3 << 7 << 4;
    QTest::newRow("one block, one window") << 21 << 20 << 5 << 20;
    QTest::newRow("windows of the recording") << 20 << 20 << 5 << 20;
    QTest::newRow("windows beyond the recording") << 20 << 99 << 5 << 99;
    QTest::newRow("windows of 1") << 30 << 1 << 1 << 1;
    QTest::newRow("windows of 0") << 30 << 0 << 5 << 0;
    QTest::newRow("no step") << 30 << 3 << 0 << 4;
    QTest::newRow("no rows") << 0 << 1 << 1 << 1;
}

// Value by value the same, on a level where single precision tells.
void TestLocalVariance::sumsInSinglePrecision()
{
    QFETCH(int, rows);
    QFETCH(int, smoothing);
    QFETCH(int, step);
    QFETCH(int, window);
    std::mt19937 random(11);
    std::normal_distribution<double> normal(30.0, 2.0);
    std::vector<double> values;
    for (int i = 0; i < rows; ++i)
        values.push_back(normal(random));
    const std::vector<float> means = BlockMeans(values, smoothing, step);
    QCOMPARE(means, plainMeans(values, smoothing, step));
    QCOMPARE(LocalVariances(means, window), plainVariances(means, window));
}

// A step of 10, with 5 rows of 5 from smoothing, has its largest variance where the window lies
// half on either side: 95 squares of 5 by 100, or 23.75.
void TestLocalVariance::findsTransitions()
{
    const auto cuts = [](double level, LocalVarianceParameters parameters, int length = 300) {
        std::vector<double> values(600, 0.0);
        std::fill_n(values.begin() + 300, length, level);
        const auto data = MakeColumn(values);
        data->AddAttribute(QStringLiteral("B"), ATTRIBUTE_OTHER);
        for (int row = 0; row < data->GetRowCount(); ++row)
            data->GetRow(row)->AddValue(0.0);
        LocalVarianceExtractor extractor;
        extractor.setDataSet(data.get());
        extractor.extract(parameters);
        return extractor.getIndices();
    };
    const std::vector<int> none;
    const std::vector<int> middle = cuts(10.0, {0, 1, 1, 10, 5, 100, 23.7});
    QVERIFY(middle.size() == 1 && std::abs(middle[0] - 247) <= 1);
    QCOMPARE(cuts(10.0, {1, 0, 1, 10, 5, 100, 23.7}), middle);
    QCOMPARE(cuts(10.0, {1, 1, 0, 10, 5, 100, 23.7}), middle);
    QCOMPARE(cuts(10.0, {1, 1, 0, 10, 5, 100, 23.8}), none);
    // The root of three times the square of 23.75 is 41.136.
    QCOMPARE(cuts(10.0, {0, 0, 0, 10, 5, 100, 41.1}), middle);
    QCOMPARE(cuts(10.0, {0, 0, 0, 10, 5, 100, 41.2}), none);
    QCOMPARE(cuts(0.0, {0, 0, 0, 10, 5, 100, 0.0}), none);
    QCOMPARE(cuts(missing, {0, 1, 1, 10, 5, 100, 0.0}), none);
    QCOMPARE(cuts(10.0, {0, 1, 99, 10, 5, 100, 0.0}), none);
    // Between two steps 80 rows apart the variance falls to 16 only, which does not count.
    QCOMPARE(int(cuts(10.0, {0, 1, 1, 10, 5, 100, 20.0}, 80).size()), 2);
}

void TestLocalVariance::stops()
{
    std::vector<double> values(20'000, 0.0);
    for (size_t row = 0; row < values.size(); row += 1000)
        values[row] = 50.0;
    const auto data = MakeColumn(values);
    LocalVarianceExtractor extractor;
    extractor.setDataSet(data.get());
    int last = 0;
    ScriptedProgress watch([&](int value) {
        last = std::max(last, value);
        return false;
    });
    const LocalVarianceParameters parameters{0, 0, 0, 10, 5, 100, 0.1};
    extractor.extract(parameters, watch);
    QVERIFY(!extractor.getIndices().empty());
    for (const int stop : {0, last / 2, last}) {
        ScriptedProgress progress([=](int value) { return value >= stop; });
        extractor.extract(parameters, progress);
        QVERIFY(extractor.getIndices().empty());
    }
}

QTEST_MAIN(TestLocalVariance)
#include "tst_localvariance.moc"
