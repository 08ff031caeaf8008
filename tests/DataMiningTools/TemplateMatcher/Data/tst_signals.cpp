#include "centredsmoothing.h"
#include "patternbuilder.h"
#include "signalresampling.h"
#include "signalsmoothing.h"
#include "testdata.h"

#include <QTest>
#include <cmath>
#include <numeric>

class TestSignals : public QObject
{
    Q_OBJECT
private slots:
    void resamples_data();
    void resamples();
    void weighsAsTabled();
    void smoothsAnImpulse();
    void smoothsWithGain_data();
    void smoothsWithGain();
    void smoothsCentred();
    void buildsPatterns();
    void refusesTooMuch();
    void tellsWhatFindsNothing();
};

void TestSignals::resamples_data()
{
    QTest::addColumn<int>("up");
    QTest::addColumn<int>("down");
    QTest::addColumn<std::vector<double>>("signal");
    QTest::addColumn<std::vector<double>>("expected");
    const std::vector<double> eleven{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    QTest::newRow("equal") << 3 << 3 << eleven << eleven;
    QTest::newRow("up") << 2 << 1 << std::vector<double>{0, 1, -1}
                        << std::vector<double>{0, 0.5, 1, 0, -1};
    QTest::newRow("down") << 1 << 2 << eleven << std::vector<double>{0, 2, 4, 6, 8, 10};
    QTest::newRow("down of an even number")
        << 1 << 3 << std::vector<double>{1, 2, 3, 4} << std::vector<double>{1, 4};
    QTest::newRow("up, then down")
        << 3 << 2 << std::vector<double>{0, 6, 3} << std::vector<double>{0, 4, 5, 3};
    QTest::newRow("one value") << 1000 << 999 << std::vector<double>{7} << std::vector<double>{7};
    QTest::newRow("beyond the end") << 1 << 9 << eleven << std::vector<double>{0, 9};
}

void TestSignals::resamples()
{
    QFETCH(int, up);
    QFETCH(int, down);
    QFETCH(std::vector<double>, signal);
    QFETCH(std::vector<double>, expected);
    SignalTemplateDataObject stored;
    stored.SetSignal(signal.data(), int(signal.size()));
    stored.SetCollectionId(5);
    stored.SetId(6);
    stored.setAttributeName(QStringLiteral("Acc_X"));
    const auto copy = stored.resampledCopy(up, down);
    QCOMPARE(copy->GetValues(), expected);
    QCOMPARE(qint64(expected.size()), ResampledLength(qint64(signal.size()), up, down));
    const double sum = std::accumulate(expected.begin(), expected.end(), 0.0);
    QCOMPARE(copy->GetMean(), sum / double(expected.size()));
    QCOMPARE(copy->GetAttributeName(), QStringLiteral("Acc_X"));
    QCOMPARE(copy->GetCollectionId(), 5);
    QCOMPARE(copy->GetId(), -1);
}

void TestSignals::weighsAsTabled()
{
    // The quartic smoothing weights of 17 points, as tabled in integers, from the middle outwards.
    const int table[] = {883, 825, 660, 415, 135, -117, -260, -195, 195};
    const std::vector<float> weights = SavitzkyGolayWeights(8, 17);
    for (size_t i = 0; i < weights.size(); ++i) {
        const double expected = table[std::min(i, 17 - i)] / 4199.0;
        QVERIFY2(std::abs(double(weights[i]) - expected) < 2e-6, qPrintable(QString::number(i)));
    }
    // Far apart powers still solve: the weights of a fit add up to one.
    for (const int half : {2, 3, 50, 98}) {
        const std::vector<float> wide = SavitzkyGolayWeights(half, 2 * half + 2);
        QVERIFY(std::abs(std::accumulate(wide.begin(), wide.end(), 0.0) - 1) < 1e-4);
        QCOMPARE(wide[size_t(half) + 1], 0.0F);
    }
}

void TestSignals::smoothsAnImpulse()
{
    SignalTemplateDataObject signal;
    QVERIFY(!signal.SmoothSignal(8));
    std::vector<double> values(40, 0.0);
    values[12] = 4199;
    signal.SetSignal(values.data(), 40);
    QVERIFY(signal.SmoothSignal(8));
    // By hand from the tabled weights: late by 7.
    const std::vector<double> smoothed{415, 660, 825, 883, 825, 660, 415, 135};
    for (int i = 0; i < 40; ++i) {
        const bool isRaw = i < 16 || i > 23;
        const double expected = isRaw ? values[size_t(i)] : smoothed[size_t(i) - 16];
        QVERIFY2(std::abs(signal.GetSignal()[i] - expected) < 0.02, qPrintable(QString::number(i)));
    }
}

void TestSignals::smoothsWithGain_data()
{
    QTest::addColumn<int>("window");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("smoothed");
    QTest::addColumn<double>("gain");
    QTest::newRow("default") << 8 << 100 << 68 << 3809.0 / 4199;
    QTest::newRow("one value") << 8 << 33 << 1 << 3809.0 / 4199;
    QTest::newRow("as long as its ends") << 8 << 32 << 0 << 1.0;
    // 9 points: the tabled weight of the outermost ones is 15 / 429.
    QTest::newRow("small") << 4 << 17 << 1 << 1 - 30.0 / 429;
    QTest::newRow("none") << 1 << 100 << 0 << 1.0;
    QTest::newRow("negative") << -8 << 100 << 0 << 1.0;
}

void TestSignals::smoothsWithGain()
{
    QFETCH(int, window);
    QFETCH(int, length);
    QFETCH(int, smoothed);
    QFETCH(double, gain);
    const auto values = SmoothedSignal(std::vector<double>(size_t(length), 1.0), window);
    int others = 0;
    for (const double value : values) {
        QVERIFY(value == 1.0 || std::abs(value - gain) < 1e-5);
        others += value != 1.0;
    }
    QCOMPARE(int(values.size()), length);
    QCOMPARE(others, smoothed);
}

void TestSignals::smoothsCentred()
{
    // savgol_filter of SciPy 1.10 with 17 points, order 4 and mode "interp".
    const std::vector<double> expected{
        3.489164087,  7.520123839,  9.907378741,  11.09004128,  11.449710248, 11.310470747,
        10.938894181, 10.544038263, 10.277447011, 11.0,         11.722552989, 12.165753751,
        10.834246249, 11.277447011, 12.0,         11.654441534, 12.337282686, 13.129217274,
        13.802016353, 14.042549813, 13.452786378, 11.549793602, 7.765737874,  1.447884417};
    std::vector<double> values;
    for (int i = 0; i < 24; ++i)
        values.push_back((i * 37) % 23);
    SignalTemplateDataObject signal;
    QVERIFY(!signal.SmoothSignalCentred(8));
    signal.SetSignal(values.data(), 24);
    QVERIFY(signal.SmoothSignalCentred(8));
    for (size_t i = 0; i < 24; ++i)
        QVERIFY(std::abs(signal.GetValues()[i] - expected[i]) < 1e-8);
    // As many points as there are: the exact fit of an impulse by fractions, over 7 points.
    const auto few = CentredSmoothedSignal({1, 0, 0, 0, 0, 0, 0}, 99);
    const double exact[] = {76 / 77.0, 25 / 462.0, -5 / 66.0, 5 / 231.0, 10 / 231.0, -19 / 462.0};
    for (size_t i = 0; i < 6; ++i)
        QVERIFY(std::abs(few[i] - exact[i]) < 1e-12);
    // A quartic stays what it is, under the widest window too.
    values.clear();
    for (int i = 0; i < 500; ++i)
        values.push_back(std::pow(i / 100.0 - 2, 4) - i);
    const auto wide = CentredSmoothedSignal(values, 99);
    for (size_t i = 0; i < values.size(); ++i)
        QVERIFY(std::abs(wide[i] - values[i]) < 1e-9);
    for (const int window : {-8, 1, 3})
        QCOMPARE(CentredSmoothedSignal(values, window), values);
    QCOMPARE(CentredSmoothedSignal({}, 8), std::vector<double>());
}

void TestSignals::buildsPatterns()
{
    const auto data = MakeDataSet("0 1\n1 2\n2 4\n3 8");
    PatternRequest request;
    request.m_From = 1;
    request.m_To = 4;
    request.m_Attributes = {0, 1};
    request.m_Factors = {{1, 3}};
    const auto pattern = MakePattern(data.get(), request);
    const auto* third = pattern->GetSignalCollections().first();
    QCOMPARE(third->GetFrequencyFactor(), double(1.0F / 3.0F));
    QCOMPARE(third->GetSignals()[1]->GetValues(), std::vector<double>({2}));
    for (const int to : {1, 5}) {
        request.m_To = to;
        QCOMPARE(MakePattern(data.get(), request), nullptr);
    }
}

void TestSignals::refusesTooMuch()
{
    PatternRequest request;
    request.m_To = 16779;
    request.m_Attributes = {0};
    request.m_Factors = {{1000, 999}};
    QVERIFY(IsPatternTooLong(request));
    QVERIFY(ResampledSignal(std::vector<double>(16779, 1.0), 1000, 999).empty());
    request.m_To = 16778;
    QVERIFY(!IsPatternTooLong(request));
    request.m_Attributes.fill(0, 1000);
    QVERIFY(IsPatternTooLong(request));
}

void TestSignals::tellsWhatFindsNothing()
{
    const auto data = MakeDataSet("1 5 1 0\n2 5 nan 0\n1 5 1 0\n2 5 inf 9");
    PatternRequest request;
    request.m_To = 4;
    const auto fault = [&](int attribute) {
        request.m_Attributes = {attribute};
        return FindRowFault(*data, request);
    };
    QCOMPARE(fault(0), QString());
    QCOMPARE(fault(1), QStringLiteral("Error: B has the same value all through the template."));
    QCOMPARE(fault(2), QStringLiteral("Error: C has missing values in the template."));
    request.m_From = 2;
    QCOMPARE(fault(2), QStringLiteral("Error: C has missing values in the template."));
    QCOMPARE(fault(3), QString());
    // Every second value is the same.
    request.m_From = 0;
    request.m_Attributes = {0};
    request.m_Factors = {{1, 1}, {1, 2}};
    QCOMPARE(FindPatternFault(*MakePattern(data.get(), request)),
             QStringLiteral("Error: A has the same value all through the template."));
}

QTEST_GUILESS_MAIN(TestSignals)
#include "tst_signals.moc"
