#include "localvariance.h"

#include "localvarianceextractor.h"
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
    void findsTransitions_data();
    void findsTransitions();
};

void TestLocalVariance::sumsInSinglePrecision_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("smoothing");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("window");
    const auto row = [](const char* name, int rows, int smoothing, int step, int window) {
        QTest::newRow(name) << rows << smoothing << step << window;
    };
    row("as proposed", 1000, 10, 5, 100);
    row("step larger than window", 203, 3, 7, 4);
    row("step of one", 150, 12, 1, 9);
    row("one block, one window", 21, 20, 5, 20);
    row("windows of the recording", 20, 20, 5, 20);
    row("windows beyond the recording", 20, 99, 5, 99);
    row("windows of 1", 30, 1, 1, 1);
    row("windows of 0", 30, 0, 5, 0);
    row("no step", 30, 3, 0, 4);
    row("no rows", 0, 1, 1, 1);
    row("one row", 1, 1, 1, 1);
    row("two rows", 2, 1, 1, 1);
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

void TestLocalVariance::findsTransitions_data()
{
    QTest::addColumn<double>("burst");
    QTest::addColumn<double>("threshold");
    QTest::addColumn<int>("axis");
    QTest::addColumn<int>("cuts");
    QTest::newRow("on X") << 10.0 << 1.0 << 0 << 1;
    QTest::newRow("on Z") << 10.0 << 1.0 << 2 << 1;
    QTest::newRow("too weak") << 10.0 << 40.0 << 2 << 0;
    QTest::newRow("nothing happens") << 0.0 << 0.0 << 1 << 0;
    QTest::newRow("gap") << missing << 0.1 << 1 << 0;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 0.1 << 1 << 0;
    QTest::newRow("no such attribute") << 10.0 << 1.0 << 3 << 0;
    QTest::newRow("threshold below zero") << 10.0 << -1.0 << 0 << 0;
}

// One step from 0 to a level: the variance has one maximum, of a quarter of the squared level,
// where the window lies half on either side.
void TestLocalVariance::findsTransitions()
{
    QFETCH(double, burst);
    QFETCH(double, threshold);
    QFETCH(int, axis);
    QFETCH(int, cuts);
    std::vector<double> values(600, 0.0);
    std::fill(values.begin() + 300, values.end(), burst);
    const auto data = MakeColumn(values);
    for (const char* name : {"B", "C"}) {
        data->AddAttribute(QLatin1String(name), ATTRIBUTE_OTHER);
        for (int row = 0; row < data->GetRowCount(); ++row)
            data->GetRow(row)->AddValue(0.0);
    }
    LocalVarianceParameters parameters{1, 1, 1};
    (axis == 0 ? parameters.m_X : axis == 1 ? parameters.m_Y : parameters.m_Z) = axis == 3 ? 3 : 0;
    parameters.m_Threshold = threshold;
    LocalVarianceExtractor extractor;
    extractor.setDataSet(data.get());
    extractor.extract(parameters);
    QCOMPARE(int(extractor.getIndices().size()), cuts);
    if (cuts > 0)
        QVERIFY(std::abs(extractor.getIndices().front() - 250) <= 5);
}

QTEST_MAIN(TestLocalVariance)
#include "tst_localvariance.moc"
