#include "dataspectra.h"
#include "pearsoncorrelation.h"
#include "rowwindow.h"
#include "runningnormalization.h"
#include "signaltemplatedataobject.h"
#include "templatematcher.h"
#include "testdata.h"
#include <QtTest>
#include <cmath>
#include <numeric>
#include <random>

using Column = std::vector<double>;
using Confidences = std::vector<float>;
Q_DECLARE_METATYPE(Column)

class TestCorrelation : public QObject
{
    Q_OBJECT
private slots:
    void sumsProducts();
    void sharesNoMemory();
    void runsSumsStepByStep();
    void givesWorkedExamples();
    void normalizesHardData();
    void correlatesExactly_data();
    void correlatesExactly();
    void refusesWhatDoesNotFit();
};

/// Also for what is no number.
template <class Value>
static bool isSame(Value a, Value b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

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
        else if (kind == "noise")
            data.push_back(i / 1000 % 3 == 1 ? 0.0 : noise(random));
        else if (kind == "ties") // sums with halves of a single's last digit
            data.push_back(std::round(noise(random) * 1e5) * 257);
        else if (kind == "huge")
            data.push_back(noise(random) * (i % 500 == 9 ? 1e39 : i % 3 == 0 ? 1e-39 : 1e18));
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

/// What writes sums to the windows' middles.
static WindowSink writer(Confidences& results, int filterLength)
{
    float* middles = results.data() + (filterLength - 1) / 2;
    return [=](int first, const double* sums, int count) {
        std::transform(sums, sums + count, middles + first, [](double sum) { return float(sum); });
    };
}

/// Data without its running mean, and the running root mean square, step by step.
struct Steps {
    Steps(const Column& x, int m) : m_Centred(x), m_Roots(x.size())
    {
        const int n = int(x.size());
        const int h = (m - 1) / 2;
        float sum = 0.0F;
        for (int i = 0; i < m; ++i)
            sum = float(double(sum) + x[size_t(i)]);
        for (int i = h; i < n - m / 2; ++i) {
            sum = float(double(sum) - x[size_t(i - h)]);
            sum = float(double(sum) + x[size_t(i + h)]);
            m_Centred[size_t(i)] = x[size_t(i)] - double(sum / float(m));
        }
        const auto square = [this](int i) { return m_Centred[size_t(i)] * m_Centred[size_t(i)]; };
        float q = 0.0F;
        for (int i = 0; i < m; ++i)
            q = float(double(q) + square(i));
        for (int i = h; i < n - h; ++i) {
            q = float(double(q) - square(i - h));
            q = std::max(float(double(q) + square(i + h)), 0.0F);
            m_Roots[size_t(i)] = std::sqrt(q / float(m));
        }
    }

    Column m_Centred;
    Confidences m_Roots;
};

/// The normalised correlation from these.
static Confidences directSteps(const Column& x, const SignalTemplateDataObject& signal)
{
    const int m = signal.GetLength();
    const Steps steps(x, m);
    Column t(signal.GetSignal(), signal.GetSignal() + m);
    for (double& value : t)
        value -= double(float(signal.GetMean()));
    Confidences r = directSums(steps.m_Centred, t, 0.0F);
    for (size_t i = 0; i < r.size(); ++i) {
        const float v = float(signal.GetSd()) * steps.m_Roots[i];
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

void TestCorrelation::sumsProducts()
{
    // One value; the filter one value or all; 4003 is prime; a block of 2048 and one row more;
    // many blocks; a filter longer than the usual block.
    const std::pair<int, int> sizes[] = {{1, 1},      {50, 1},      {400, 400},
                                         {1000, 7},   {4000, 4},    {2048, 100},
                                         {2049, 100}, {30000, 401}, {20000, 5000}};
    for (const auto& [length, filterLength] : sizes) {
        const Column data = makeData("walk", length);
        const Column filter = makeData("spikes", filterLength);
        const Confidences expected = directSums(data, filter, 7.0F);
        Confidences whole(data.size(), 7.0F);
        TemplateMatcher::convolveFast(data.data(), length, filter.data(), filterLength,
                                      whole.data());
        QVERIFY2(worstDistance(whole, expected) <= 1, qPrintable(QString::number(length)));
        Confidences blocks(data.size(), 7.0F);
        const auto table = MakeColumn(data);
        RowWindow rows(table->GetColumn(0));
        CorrelateByBlocks(rows, filter.data(), filterLength, writer(blocks, filterLength));
        QVERIFY2(worstDistance(blocks, expected) <= 1, qPrintable(QString::number(length)));
        Confidences kept(data.size(), 7.0F);
        RowWindow sameRows(table->GetColumn(0));
        DataSpectra spectra(sameRows, std::min(length, filterLength + length / 3));
        spectra.Correlate(filter.data(), filterLength, writer(kept, filterLength));
        QVERIFY2(worstDistance(kept, expected) <= 1, qPrintable(QString::number(length)));
    }
}

// What one search has found stays when another one runs with blocks of the same length.
void TestCorrelation::sharesNoMemory()
{
    constexpr int length = 2048;
    const Column filter = makeData("spikes", 100);
    const Column data[] = {makeData("walk", length), makeData("offset", length)};
    BlockCorrelation searches[] = {{length, 100}, {length, 100}};
    QCOMPARE(&searches[0].GetFft(), &searches[1].GetFft());
    const double* sums[2];
    for (int i = 0; i < 2; ++i) {
        AlignedArray<double> block = searches[i].GetFft().MakeValues();
        FillBlock(data[i].data(), length, block);
        const FilterSpectrum spectrum(searches[i].GetFft(), filter.data(), 100);
        sums[i] = searches[i].Correlate(block.GetData(), spectrum);
    }
    for (int i = 0; i < 2; ++i) {
        Confidences found(length);
        writer(found, 100)(0, sums[i], length - 99);
        QVERIFY(worstDistance(found, directSums(data[i], filter, 0.0F)) <= 1);
    }
}

// To the bit, also where guesses of sums go wrong.
void TestCorrelation::runsSumsStepByStep()
{
    for (const char* kind : {"walk", "spikes", "flat", "offset", "noise", "ties", "huge"}) {
        const Column data = makeData(kind, 6001);
        const auto table = MakeColumn(data);
        for (const int m : {1, 2, 40, 401, 5990, 6001}) {
            const Steps expected(data, m);
            RowWindow rows(table->GetColumn(0));
            RunningNormalization running(rows, m, 1700);
            const int h = (m - 1) / 2;
            for (int start = 0, count = 0; start < 6002 - m; start += count) {
                count = std::min(1700, 6002 - m - start);
                running.Advance(count);
                const QByteArray place = QByteArray(kind) + ' ' + QByteArray::number(m);
                QVERIFY2(std::equal(running.GetCentred(), running.GetCentred() + count + m - 1,
                                    expected.m_Centred.begin() + start, isSame<double>),
                         place.constData());
                QVERIFY2(std::equal(running.GetRootMeanSquares(),
                                    running.GetRootMeanSquares() + count,
                                    expected.m_Roots.begin() + start + h, isSame<float>),
                         place.constData());
            }
        }
    }
}

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

// Gaps, at the start and across the end of a block, count as the number before or, in front,
// behind them; a distance from what is no number would be infinite.
void TestCorrelation::normalizesHardData()
{
    Column data = makeData("walk", 6000);
    std::fill(data.begin() + 2900, data.begin() + 3100, 1e10);
    std::fill(data.begin() + 3100, data.begin() + 3700, 0.0);
    Column gappy = data;
    gappy[1200] = INFINITY;
    data[1200] = data[1199];
    for (const size_t start : {10, 1700, 4090}) {
        std::fill_n(gappy.begin() + start, 500, NAN);
        std::fill_n(data.begin() + start, 500, data[start == 10 ? 510 : start - 1]);
    }
    const auto table = MakeColumn(gappy);
    const Column rows(data.begin() + 10, data.end() - 20);
    for (const int m : {1, 4, 30, 41, 2500, 5969, 5970}) {
        SignalTemplateDataObject signal;
        setSignal(signal, Column(data.begin() + 25, data.begin() + 25 + m));
        Confidences found(rows.size());
        TemplateMatcher::fastNormalizedRunningCorrelation(table.get(), &signal, 0, found.data(), 10,
                                                          5980);
        QVERIFY2(worstDistance(found, directSteps(rows, signal)) <= 1,
                 qPrintable(QString::number(m)));
    }
}

static Column pearsonByWindow(const Column& data, const Column& signal)
{
    const size_t m = signal.size();
    const auto centre = [m](const double* values) {
        std::vector<long double> centred(values, values + m);
        const long double mean = std::accumulate(centred.begin(), centred.end(), 0.0L) / m;
        for (long double& value : centred)
            value -= mean;
        return centred;
    };
    const auto product = [](const auto& a, const auto& b) {
        return std::inner_product(a.begin(), a.end(), b.begin(), 0.0L);
    };
    const auto isFlat = [m](const double* values) {
        return std::all_of(values, values + m, [=](double value) { return value == *values; });
    };
    const auto t = centre(signal.data());
    Column results;
    for (size_t start = 0; start + m <= data.size(); ++start) {
        const auto w = centre(data.data() + start);
        const bool isAnyFlat = isFlat(signal.data()) || isFlat(data.data() + start);
        results.push_back(
            isAnyFlat ? 0.0 : double(product(t, w) / std::sqrt(product(t, t) * product(w, w))));
    }
    return results;
}

void TestCorrelation::correlatesExactly_data()
{
    QTest::addColumn<Column>("data");
    const auto with = [](Column data, size_t from, size_t count, double value) {
        std::fill_n(data.begin() + long(from), count, value);
        return data;
    };
    Column far = makeData("offset", 6000);
    for (double& value : far)
        value = 1e6 + 1e-3 * (value - 1e5);
    QTest::newRow("1e6 and a thousandth") << far;
    QTest::newRow("drift") << makeData("walk", 6000);
    QTest::newRow("spikes") << makeData("spikes", 6000);
    QTest::newRow("flat stretches") << makeData("flat", 6000);
    QTest::newRow("noise and zeros") << makeData("noise", 6000);
    QTest::newRow("faint beside huge") << with(makeData("noise", 6000), 4000, 30, 1e10);
    QTest::newRow("gaps") << with(with(makeData("walk", 6000), 0, 40, NAN), 2000, 90, INFINITY);
}

// Against two passes over each window in extended precision.
void TestCorrelation::correlatesExactly()
{
    QFETCH(Column, data);
    const auto table = MakeColumn(data);
    RowWindow all(table->GetColumn(0));
    const Column bridged(all.Get(0, all.GetLength()), all.Get(0, 6000) + 6000);
    for (const size_t m : {1, 2, 41, 300, 5500, 6000}) {
        const Column signal(bridged.begin() + long(6000 - m) / 3,
                            bridged.begin() + long(6000 - m) / 3 + long(m));
        const Column expected = pearsonByWindow(bridged, signal);
        RowWindow rows(table->GetColumn(0));
        double worst = 0.0;
        CorrelatePearson(rows, signal.data(), int(m), [&](int first, const double* r, int count) {
            for (int i = 0; i < count; ++i) {
                const double distance = std::abs(r[i] - expected[size_t(first + i)]);
                worst = std::abs(r[i]) <= 1.0 && distance <= worst ? worst
                        : std::abs(r[i]) <= 1.0                    ? distance
                                                                   : INFINITY;
            }
        });
        QVERIFY2(worst < 1e-9, qPrintable(QStringLiteral("%1: %2").arg(m).arg(worst)));
    }
}

void TestCorrelation::refusesWhatDoesNotFit()
{
    const auto data = MakeColumn(makeData("walk", 20));
    SignalTemplateDataObject signal;
    const Confidences untouched(20, 7.0F);
    Confidences found = untouched;
    TemplateMatcher::fastNormalizedRunningCorrelation(data.get(), &signal, 0, found.data(), 0, 20);
    setSignal(signal, Column(11, 1.0));
    const int wrong[][3] = {{1, 0, 20}, {-1, 0, 20}, {0, -1, 19}, {0, 5, 21}, {0, 5, 15}};
    for (const auto& [attribute, start, end] : wrong)
        TemplateMatcher::fastNormalizedRunningCorrelation(data.get(), &signal, attribute,
                                                          found.data(), start, end);
    TemplateMatcher::convolveFast(signal.GetSignal(), 3, signal.GetSignal(), 4, found.data());
    TemplateMatcher::convolveFast(signal.GetSignal(), 3, signal.GetSignal(), 0, found.data());
    QCOMPARE(found, untouched);
}

QTEST_GUILESS_MAIN(TestCorrelation)
#include "tst_correlation.moc"
