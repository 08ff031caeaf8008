#include "patternsdataobject.h"
#include "segmenttext.h"
#include "stoppingprogress.h"
#include "templatematcher.h"
#include "testdata.h"
#include <QtTest>
#include <cmath>

using Values = std::vector<double>;

class TestTemplateMatcher : public QObject
{
    Q_OBJECT
private slots:
    void takesTheMeanOfPositiveCorrelations();
    void marksOtherSegments();
    void refusesAndSurvivesEdges();
    void normalizesResults();
};

static void addSignal(SignalTemplateCollectionDataObject* collection, const QString& attribute,
                      const Values& values)
{
    auto* signal = new SignalTemplateDataObject;
    signal->SetSignal(values.data(), int(values.size()));
    signal->computeMean();
    signal->computeSd();
    signal->setAttributeName(attribute);
    collection->AddSignal(signal);
}

static SignalTemplateCollectionDataObject* addCollection(PatternsDataObject& pattern)
{
    auto* collection = new SignalTemplateCollectionDataObject;
    pattern.AddSignalCollection(collection);
    return collection;
}

static Values resultOf(TemplateMatcher& matcher, int collection, int length)
{
    const float* values = matcher.getResults()[collection];
    Values rounded(values, values + length);
    // A sum of products of 0 comes out of the transforms as nearly 0.
    for (double& value : rounded)
        value = std::round(value * 1e4) / 1e4;
    return rounded;
}

void TestTemplateMatcher::takesTheMeanOfPositiveCorrelations()
{
    const auto data =
        MakeDataSet("1 2\n2 0\n-3 1\n4 -1\n0 nan", {QStringLiteral("X"), QStringLiteral("Y")});
    PatternsDataObject pattern;
    auto* collection = addCollection(pattern);
    addSignal(collection, QStringLiteral("X"), {1, 2});
    addSignal(collection, QStringLiteral("Y"), {1, 1});
    addSignal(collection, QStringLiteral("Y"), {1, 1, 1, 1, 1, 1}); // longer than the data
    addSignal(addCollection(pattern), QStringLiteral("Y"), {3});
    TemplateMatcher matcher(data.get(), &pattern, 5, TemplateMatcher::MEASURE_CORRELATION);
    const QHash<QString, int> both{{QStringLiteral("X"), 0}, {QStringLiteral("Y"), 1}};

    // Sums 5 -4 5 4 and 2 1 0 -2 at the windows' first of two rows, over three signals.
    QVERIFY(matcher.Convolve(both));
    QCOMPARE(resultOf(matcher, 0, 5), Values({2.3333, 0.3333, 1.6667, 1.3333, 0}));
    // The last row has no number and counts as the one before it.
    QCOMPARE(resultOf(matcher, 1, 5), Values({6, 0, 3, 0, 0}));

    QVERIFY(matcher.Convolve(1, 4, both));
    QCOMPARE(resultOf(matcher, 0, 3), Values({0.3333, 1.6667, 0}));

    // A name not in the map is attribute 0; no attribute is no match, and still counts.
    QVERIFY(matcher.Convolve({{QStringLiteral("X"), -1}}));
    QCOMPARE(resultOf(matcher, 1, 5), Values({3, 6, 0, 12, 0}));
    QCOMPARE(resultOf(matcher, 0, 5), Values({1, 0, 0.3333, 1.3333, 0}));
    QVERIFY(matcher.Convolve({{QStringLiteral("X"), 2}, {QStringLiteral("Y"), 2}}));
    QCOMPARE(resultOf(matcher, 0, 5), Values(5, 0.0));

    // Pearson's of two rows is their sign: X is + - + -, and the signals of Y are flat or too
    // long. It stands at the window's first row.
    TemplateMatcher exact(data.get(), &pattern, 0, TemplateMatcher::MEASURE_EXACT_CORRELATION);
    QVERIFY(exact.Convolve(both));
    QCOMPARE(resultOf(exact, 0, 5), Values({0.3333, 0, 0.3333, 0, 0}));
    QCOMPARE(TemplateMatcher::getMeasureName(2), QStringLiteral("Normalized Correlation (Exact)"));
    QVERIFY(TemplateMatcher::getMeasureName(3).isEmpty());
}

void TestTemplateMatcher::marksOtherSegments()
{
    const auto data = MakeColumn(Values(10, 2.0));
    PatternsDataObject pattern;
    for (int i = 0; i < 2; ++i)
        addSignal(addCollection(pattern), QStringLiteral("A"), {1});
    CutCollection cuts;
    MakeCuts(cuts, "3 5L 8R 12");
    TemplateMatcher matcher(data.get(), &pattern, 0, TemplateMatcher::MEASURE_CORRELATION);
    NoProgress progress;
    QVERIFY(matcher.Convolve(progress, {}, &cuts, CutSegment::SEGMENT_CUT));
    const auto m = double(ExclusionMark);
    for (int i = 0; i < 2; ++i)
        QCOMPARE(resultOf(matcher, i, 10), Values({2, 2, 2, m, m, m, m, m, 2, 2}));

    // Whoever stops, behind a signal or a segment, keeps what was found before.
    for (int signalsAndSegments = 1; signalsAndSegments <= 6; ++signalsAndSegments) {
        StoppingProgress stop(signalsAndSegments);
        QVERIFY(!matcher.Convolve(stop, {}, &cuts, CutSegment::SEGMENT_LABELED));
        QCOMPARE(matcher.getErrorMessage(), QStringLiteral("The search was stopped."));
        QCOMPARE(resultOf(matcher, 0, 10), Values({2, 2, 2, m, m, m, m, m, 2, 2}));
    }

    // The last segment reaches beyond the data.
    QVERIFY(matcher.Convolve(progress, {}, &cuts, CutSegment::SEGMENT_LABELED));
    QCOMPARE(resultOf(matcher, 0, 10), Values({m, m, m, 2, 2, m, m, m, m, m}));
}

void TestTemplateMatcher::refusesAndSurvivesEdges()
{
    const auto data = MakeColumn(Values(10, 2.0));
    PatternsDataObject pattern;
    NoProgress progress;
    QVERIFY(TemplateMatcher(data.get(), &pattern, 0, 1).Convolve({}));
    addCollection(pattern);
    addSignal(addCollection(pattern), QStringLiteral("A"), {});
    TemplateMatcher matcher(data.get(), &pattern, 0, 1);
    QVERIFY(matcher.Convolve({}));
    for (int i = 0; i < 2; ++i)
        QCOMPARE(resultOf(matcher, i, 10), Values(10, 0.0));
    QVERIFY(TemplateMatcher(MakeColumn({}).get(), &pattern, 0, 1).Convolve({}));

    addSignal(addCollection(pattern), QStringLiteral("A"), {1, 2});
    QVERIFY(!matcher.Convolve(-1, 5, {}) && !matcher.Convolve(5, 4, {}));
    QVERIFY(!matcher.Convolve(0, 11, {}));
    QVERIFY(matcher.Convolve(4, 4, {}));
    for (int which = 0; which < 4; ++which) {
        TemplateMatcher bad(which == 0 ? nullptr : data.get(), which == 1 ? nullptr : &pattern, 0,
                            which == 2   ? 3
                            : which == 3 ? -1
                                         : 0);
        QCOMPARE(bad.getErrorMessage(), QStringLiteral("N/A"));
        QVERIFY(!bad.Convolve(progress, {}, nullptr, CutSegment::SEGMENT_CUT));
        QVERIFY(bad.getErrorMessage() != QStringLiteral("N/A"));
    }
}

void TestTemplateMatcher::normalizesResults()
{
    const auto normalize = [](std::vector<float> first, std::vector<float> second) {
        float* both[] = {first.data(), second.data()};
        float min = 9.0F;
        float max = 9.0F;
        TemplateMatcher::normalizeResults(both, 2, int(first.size()), min, max);
        first.insert(first.end(), second.begin(), second.end());
        first.insert(first.end(), {min, max});
        return first;
    };
    constexpr float mark = ExclusionMark;
    using Floats = std::vector<float>;
    QCOMPARE(normalize({3, mark}, {1, 5}), Floats({0.5F, mark, 0, 1, 1, 5}));
    QCOMPARE(normalize({0, 0}, {0, 0}), Floats({0, 0, 0, 0, 0, 0}));
    // With the mark in front it is the minimum.
    QCOMPARE(normalize({mark, 0}, {-100000, mark}), Floats({mark, 1, 0.5F, mark, mark, 0}));
    QCOMPARE(normalize({mark}, {mark}), Floats({mark, mark, mark, mark}));
    QCOMPARE(normalize({}, {}), Floats({0, 0}));
    float values[] = {2, mark, 4};
    float* array[] = {values};
    TemplateMatcher::normalizeArrays(array, 1, 3, 2, 6);
    QCOMPARE(Floats(values, values + 3), Floats({0, -50000.5F, 0.5F}));
}

QTEST_GUILESS_MAIN(TestTemplateMatcher)
#include "tst_templatematcher.moc"
