#include "blockcorrelation.h"
#include "rowwindow.h"
#include "signaltemplatedataobject.h"
#include "templatematcher.h"
#include "testdata.h"
#include <QTemporaryDir>
#include <QtTest>
#include <cmath>
#include <random>

using Column = std::vector<double>;
using Confidences = std::vector<float>;

class TestCorrelation : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(QDir::setCurrent(m_Folder.path())); }
    void cleanupTestCase() { QDir::setCurrent(QDir::rootPath()); }
    void sumsProducts_data();
    void sumsProducts();
    void normalizesByRunningWindows_data();
    void normalizesByRunningWindows();
    void givesWorkedExamples();
    void staysFiniteOnHardData();
    void refusesWhatDoesNotFit();

private:
    QTemporaryDir m_Folder;
};

static Column makeData(const QByteArray& kind, int length)
{
    std::mt19937 random(3);
    std::normal_distribution<double> noise;
    Column data;
    double walk = 0.0;
    for (int i = 0; i < length; ++i) {
        walk += noise(random);
        if (kind == "walk")
            data.push_back(walk);
        else if (kind == "spikes")
            data.push_back(i % 97 == 0 ? 1e4 * noise(random) : 0.01 * noise(random));
        else if (kind == "flat")
            data.push_back(i / 300 % 3 == 1 ? 0.3 : std::sin(0.1 * i));
        else
            data.push_back(1e5 + std::sin(0.05 * i) + 0.1 * noise(random));
    }
    return data;
}

/// Every window's sum by itself.
static Confidences directSums(const Column& data, const Column& filter, float untouched)
{
    Confidences results(data.size(), untouched);
    for (size_t start = 0; start + filter.size() <= data.size(); ++start) {
        double sum = 0.0;
        for (size_t j = 0; j < filter.size(); ++j)
            sum += data[start + j] * filter[j];
        results[start + (filter.size() - 1) / 2] = float(sum);
    }
    return results;
}

/// The normalised correlation, step by step over whole arrays.
static Confidences directSteps(const Column& x, const SignalTemplateDataObject& signal)
{
    const int n = int(x.size());
    const int m = signal.GetLength();
    const int h = (m - 1) / 2;
    Column d = x;
    float sum = 0.0F;
    for (int i = 0; i < m; ++i)
        sum = float(double(sum) + x[size_t(i)]);
    for (int i = h; i < n - m / 2; ++i) {
        sum = float(double(sum) - x[size_t(i - h)]);
        sum = float(double(sum) + x[size_t(i + h)]);
        d[size_t(i)] = x[size_t(i)] - double(sum / float(m));
    }
    Confidences rootMeanSquare(x.size());
    float q = 0.0F;
    for (int i = 0; i < m; ++i)
        q = float(double(q) + d[size_t(i)] * d[size_t(i)]);
    for (int i = h; i < n - h; ++i) {
        q = float(double(q) - d[size_t(i - h)] * d[size_t(i - h)]);
        q = std::max(float(double(q) + d[size_t(i + h)] * d[size_t(i + h)]), 0.0F);
        rootMeanSquare[size_t(i)] = std::sqrt(q / float(m));
    }
    Column t(signal.GetSignal(), signal.GetSignal() + m);
    for (double& value : t)
        value -= double(float(signal.GetMean()));
    Confidences r = directSums(d, t, 0.0F);
    for (size_t i = 0; i < r.size(); ++i) {
        const float v = float(signal.GetSd()) * rootMeanSquare[i];
        r[i] = r[i] / (v == 0.0F ? 1.0F : v) / float(m);
    }
    return r;
}

static void setSignal(SignalTemplateDataObject& signal, const Column& values)
{
    signal.SetSignal(values.data(), int(values.size()));
    signal.computeMean();
    signal.computeSd();
}

/// The worst distance in units of what is allowed: one unit in the last place, or 1e-7 of the
/// largest value.
static double worstDistance(const Confidences& found, const Confidences& expected)
{
    double largest = 0.0;
    for (const float value : expected)
        largest = std::max(largest, std::abs(double(value)));
    double worst = 0.0;
    for (size_t i = 0; i < expected.size(); ++i) {
        const float size = std::abs(expected[i]);
        const double unit = double(std::nextafter(size, INFINITY)) - double(size);
        const double distance = std::abs(double(found[i]) - double(expected[i]));
        if (!std::isfinite(found[i]))
            return INFINITY;
        worst = std::max(worst, distance / std::max(unit, 1e-7 * largest));
    }
    return worst;
}

void TestCorrelation::sumsProducts_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("filterLength");
    QTest::newRow("one value") << 1 << 1;
    QTest::newRow("filter of one") << 50 << 1;
    QTest::newRow("as long as the data") << 400 << 400;
    QTest::newRow("even") << 1000 << 6;
    QTest::newRow("odd") << 1000 << 7;
    QTest::newRow("prime length") << 4000 << 4;
    QTest::newRow("one block") << 2048 << 100;
    QTest::newRow("one value more than a block") << 2049 << 100;
    QTest::newRow("many blocks") << 30000 << 401;
    QTest::newRow("filter longer than blocks") << 20000 << 5000;
}

void TestCorrelation::sumsProducts()
{
    QFETCH(int, length);
    QFETCH(int, filterLength);
    const Column data = makeData("walk", length);
    Column filter = makeData("spikes", filterLength);
    const Confidences expected = directSums(data, filter, 7.0F);
    Confidences whole(data.size(), 7.0F);
    TemplateMatcher::convolveFast(data.data(), length, filter.data(), filterLength, whole.data());
    QVERIFY2(worstDistance(whole, expected) <= 1, "whole");
    Confidences blocks(data.size(), 7.0F);
    const auto table = MakeColumn(data);
    RowWindow rows(*table, 0, 0, length);
    CorrelateByBlocks(rows, filter.data(), filterLength, blocks.data());
    QVERIFY2(worstDistance(blocks, expected) <= 1, "blocks");
}

void TestCorrelation::normalizesByRunningWindows_data()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char* kind : {"walk", "spikes", "flat", "offset"})
        QTest::newRow(kind) << QByteArray(kind);
}

void TestCorrelation::normalizesByRunningWindows()
{
    QFETCH(QByteArray, kind);
    for (const int m : {1, 2, 3, 4, 40, 41, 900, 2500, 6000, 6001}) {
        const Column all = makeData(kind, 6021);
        const Column rows(all.begin() + 10, all.end() - 10);
        SignalTemplateDataObject signal;
        setSignal(signal, Column(all.begin() + 17, all.begin() + 17 + m));
        const Confidences expected = directSteps(rows, signal);
        Confidences found(rows.size());
        TemplateMatcher::fastNormalizedRunningCorrelation(MakeColumn(all).get(), &signal, 0,
                                                          found.data(), 10, 6011);
        QVERIFY2(worstDistance(found, expected) <= 1,
                 qPrintable(QStringLiteral("%1: %2").arg(m).arg(worstDistance(found, expected))));
    }
}

// Expected numbers: the same steps in numpy, single precision by numpy.float32.
void TestCorrelation::givesWorkedExamples()
{
    const Column data{2, 1, 4, 7, 3, 0, 0, 5, 6, 1, 2, 8};
    const auto table = MakeColumn(data);
    SignalTemplateDataObject signal;
    setSignal(signal, {1, 4, 7, 3});
    Confidences found(data.size());
    TemplateMatcher::fastNormalizedRunningCorrelation(table.get(), &signal, 0, found.data(), 0, 12);
    QVERIFY(
        worstDistance(found, {0.0F, -0.7057802F, 0.9874606F, 0.3931785F, -0.6932326F, -0.5130406F,
                              0.1896093F, 1.456242F, -0.4893434F, -0.248799F, 0.0F, 0.0F}) <= 2);

    // The signal itself stands in the second window: correlation 1, or 75 without a norm.
    Confidences direct(data.size(), 1.0F);
    TemplateMatcher::directCorrelation(table.get(), &signal, 0, direct.data(), 0, 12);
    QCOMPARE(direct[1], 76.0F);
    QCOMPARE(direct[9], 1.0F);
    TemplateMatcher::normalizedRunningCorrelation(table.get(), &signal, 0, direct.data(), 1, 12);
    QCOMPARE(direct[0], 1.0F);
    TemplateMatcher::normalizedCorrelation(table.get(), &signal, 0, direct.data(), 0, 12);
    // 18.75 of products over the deviations 2.165064 and 2.618046 and 4 values.
    QCOMPARE(direct[1], 0.8269768F);
}

void TestCorrelation::staysFiniteOnHardData()
{
    Column data = makeData("walk", 3000);
    SignalTemplateDataObject signal;
    setSignal(signal, Column(data.begin() + 2500, data.begin() + 2530));
    for (int i = 0; i < 3; ++i)
        data[size_t(i)] = data[size_t(700 + i)] = NAN;
    data[1200] = INFINITY;
    std::fill(data.begin() + 1500, data.begin() + 1700, 1e10);
    std::fill(data.begin() + 1700, data.begin() + 2300, 0.0);
    Confidences found(data.size());
    TemplateMatcher::fastNormalizedRunningCorrelation(MakeColumn(data).get(), &signal, 0,
                                                      found.data(), 0, 3000);
    for (const float value : found)
        QVERIFY(std::isfinite(value));

    // The same without the gaps, each filled from the row before or, in front, behind it.
    std::fill_n(data.begin(), 3, data[3]);
    std::fill_n(data.begin() + 700, 3, data[699]);
    data[1200] = data[1199];
    QVERIFY(worstDistance(found, directSteps(data, signal)) <= 1);

    // A flat signal has no deviation, flat data no running one.
    setSignal(signal, Column(30, 2.5));
    TemplateMatcher::fastNormalizedRunningCorrelation(MakeColumn(Column(100, 1.5)).get(), &signal,
                                                      0, found.data(), 0, 100);
    for (int i = 0; i < 100; ++i)
        QVERIFY(std::isfinite(found[size_t(i)]));
}

void TestCorrelation::refusesWhatDoesNotFit()
{
    const auto data = MakeColumn(makeData("walk", 20));
    SignalTemplateDataObject signal;
    Confidences found(20, 7.0F);
    const auto untouched = [&](int attribute, int start, int end) {
        TemplateMatcher::fastNormalizedRunningCorrelation(data.get(), &signal, attribute,
                                                          found.data(), start, end);
        TemplateMatcher::normalizedCorrelation(data.get(), &signal, attribute, found.data(), start,
                                               end);
        return found == Confidences(20, 7.0F);
    };
    QVERIFY(untouched(0, 0, 20));
    setSignal(signal, Column(11, 1.0));
    QVERIFY(untouched(1, 0, 20));
    QVERIFY(untouched(-1, 0, 20));
    QVERIFY(untouched(0, -1, 19));
    QVERIFY(untouched(0, 5, 21));
    QVERIFY(untouched(0, 5, 15));
    TemplateMatcher::convolveFast(signal.GetSignal(), 3, signal.GetSignal(), 4, found.data());
    TemplateMatcher::convolveFast(signal.GetSignal(), 3, signal.GetSignal(), 0, found.data());
    QCOMPARE(found, Confidences(20, 7.0F));
}

QTEST_GUILESS_MAIN(TestCorrelation)
#include "tst_correlation.moc"
