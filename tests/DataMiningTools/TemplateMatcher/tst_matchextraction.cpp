#include "betterfirst.h"
#include "insertmatches.h"
#include "matchextraction.h"
#include "patternsdataobject.h"
#include "progress.h"
#include "resultreduction.h"
#include "segmenttext.h"
#include "stepscale.h"
#include <QtTest>
#include <numeric>
#include <random>
#include <tuple>

namespace
{

constexpr float excluded = -200000.0F;

/// Confidences in memory of their own.
struct Confidences {
    std::vector<std::vector<float>> m_Values;
    std::vector<float*> m_Rows;

    explicit Confidences(std::vector<std::vector<float>> values) : m_Values(std::move(values))
    {
        for (auto& row : m_Values)
            m_Rows.push_back(row.data());
    }
    SearchResults Get()
    {
        return {m_Rows.data(), int(m_Rows.size()), int(m_Values.front().size())};
    }
};

// A walk over flags, one per step.
std::vector<int> findCenters(const std::vector<float>& values, int width, float threshold)
{
    const int steps = int(values.size());
    std::vector<bool> flags(values.size());
    int i = 0;
    while (i < steps) {
        if (values[size_t(i)] >= threshold) {
            const int e = i + width / 2;
            int best = i;
            for (int j = i; j <= std::min(e, steps) - 1; ++j)
                best = values[size_t(j)] >= values[size_t(best)] ? j : best;
            flags[size_t(best)] = true;
            i = e;
        }
        i = i + 1;
    }
    std::vector<int> centers;
    for (int step = 0; step < steps; ++step) {
        if (flags[size_t(step)])
            centers.push_back(step);
    }
    return centers;
}

// The matches from the best to the worst, each against all that are kept, row by row.
CenterPoints keepBetter(const CenterPoints& matches, const std::vector<int>& widths,
                        const Confidences& results)
{
    const int steps = int(results.m_Values.front().size());
    std::vector<std::tuple<float, int, size_t>> order;
    for (size_t r = 0; r < matches.size(); ++r) {
        for (const int step : matches[r])
            order.emplace_back(-results.m_Values[r][size_t(step)], step, r);
    }
    std::sort(order.begin(), order.end());
    CenterPoints kept(matches.size());
    std::vector<bool> taken(size_t(steps), false);
    for (const auto& [confidence, step, r] : order) {
        const auto from = taken.begin() + std::max(step - widths[r] / 2, 0);
        const auto to = taken.begin() + std::min(step + widths[r] / 2, steps);
        if (std::find(from, to, true) != to)
            continue;
        std::fill(from, to, true);
        kept[r].insert(std::upper_bound(kept[r].begin(), kept[r].end(), step), step);
    }
    return kept;
}

// Few different values, so that ties abound, with excluded stretches and gaps in the data.
std::vector<float> randomConfidences(std::mt19937& random, int steps)
{
    std::vector<float> values;
    while (int(values.size()) < steps) {
        const auto kind = random() % 12;
        if (kind == 0)
            values.insert(values.end(), 1 + random() % 9, excluded);
        else if (kind == 1)
            values.push_back(std::numeric_limits<float>::quiet_NaN());
        else
            values.push_back(float(random() % 9) / 8);
    }
    values.resize(size_t(steps));
    return values;
}

} // namespace

class TestMatchExtraction : public QObject
{
    Q_OBJECT
private slots:
    void agreesWithAWalkOverFlags();
    void keepsTheBetterOfOverlappingMatches();
    void spreadsAndLeavesOut();
    void insertsAsFlagsDo();
    void reducesToPixels_data();
    void reducesToPixels();
};

void TestMatchExtraction::agreesWithAWalkOverFlags()
{
    std::mt19937 random(7);
    for (int run = 0; run < 400; ++run) {
        const int steps = 1 + int(random() % 300);
        Confidences results({randomConfidences(random, steps), randomConfidences(random, steps)});
        const std::vector<int> widths{1 + int(random() % 40), 1 + int(random() % 400)};
        const float threshold = float(random() % 9) / 8;
        const CenterPoints found = computeCenterPoints(results.Get(), widths, threshold);
        for (size_t r = 0; r < 2; ++r)
            QCOMPARE(found[r], findCenters(results.m_Values[r], widths[r], threshold));
    }
}

void TestMatchExtraction::keepsTheBetterOfOverlappingMatches()
{
    std::mt19937 random(11);
    for (int run = 0; run < 400; ++run) {
        const int steps = 1 + int(random() % 300);
        Confidences results({randomConfidences(random, steps), randomConfidences(random, steps),
                             randomConfidences(random, steps)});
        const std::vector<int> widths{2 + int(random() % 40), 2 + int(random() % 20),
                                      2 + int(random() % 400)};
        const CenterPoints matches = computeCenterPoints(results.Get(), widths, 0.25F);
        QCOMPARE(KeepBetterMatches(matches, widths, results.Get()),
                 keepBetter(matches, widths, results));
    }
}

void TestMatchExtraction::spreadsAndLeavesOut()
{
    const CenterPoints matches{{1, 4, 9}, {}, {4, 6, 20, 30}};
    QCOMPARE(WithoutSteps(matches, {4, 5, 30}), (CenterPoints{{1, 9}, {}, {6, 20}}));
    QCOMPARE(StepsOfMatches(matches, 3.5, 20), (std::vector<int>{4, 6, 9, 20}));
    QCOMPARE(ChooseEvenly(matches, 3), (std::vector<CenterPoint>{{0, 1}, {0, 9}, {2, 6}}));
    QCOMPARE(ChooseEvenly(matches, 100).size(), size_t(7));
    QCOMPARE(ChooseEvenly(matches, 100).back(), (CenterPoint{2, 30}));
}

// As the cuts would be inserted from flags, one per step and factor; also beyond both ends.
void TestMatchExtraction::insertsAsFlagsDo()
{
    QCOMPARE(ExtentOfMatch(58, 9, 60), (RowSpan{54, 60}));
    QCOMPARE(ExtentOfMatch(3, 9, 60), (RowSpan{0, 7}));
    PatternsDataObject pattern;
    for (const int width : {9, 0, 4}) {
        auto* collection = new SignalTemplateCollectionDataObject;
        pattern.AddSignalCollection(collection);
        if (width == 0)
            continue;
        collection->AddSignal(new SignalTemplateDataObject);
        collection->GetSignals()[0]->SetSignal(std::vector<double>(size_t(width)).data(), width);
    }
    std::mt19937 random(5);
    for (int run = 0; run < 200; ++run) {
        bool rows[3][60] = {};
        bool* flags[] = {rows[0], rows[1], rows[2]};
        CenterPoints matches(3);
        const std::vector<int> excluded{int(random() % 30), 30 + int(random() % 30)};
        for (size_t step = 0; step < 60; ++step) {
            const size_t r = random() % 20;
            if (r > 2)
                continue;
            matches[r].push_back(int(step));
            rows[r][step] = true;
        }
        CutCollection fromFlags;
        CutCollection fromMatches;
        MakeCuts(fromFlags, "20 35L 60");
        MakeCuts(fromMatches, "20 35L 60");
        fromFlags.InsertCuts(flags, 3, 60, &pattern, 1, {{7, excluded[0]}, {0, excluded[1]}});
        for (const SearchMatch& match :
             ExtentsOfMatches(WithoutSteps(matches, excluded), pattern, 60))
            fromMatches.InsertCut(match.m_Rows.m_From, match.m_Rows.m_To,
                                  CutSegment::SEGMENT_RESULT);
        QCOMPARE(ToText(fromMatches), ToText(fromFlags));
    }
}

void TestMatchExtraction::reducesToPixels_data()
{
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("width");
    QTest::newRow("few steps") << 20 << -1 << -1 << 300;
    QTest::newRow("many steps") << 5000 << -1 << -1 << 300;
    QTest::newRow("no room") << 5000 << -1 << -1 << 20;
    QTest::newRow("zoomed") << 5000 << 1200 << 1900 << 300;
}

// Every pixel shows the highest of its steps, and every match is counted where it stands.
void TestMatchExtraction::reducesToPixels()
{
    QFETCH(int, steps);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(int, width);
    std::mt19937 random(3);
    Confidences results({randomConfidences(random, steps), randomConfidences(random, steps)});
    const StepScale scale =
        from < 0 ? StepScale::OverAll(steps, width) : StepScale::OverRange(from, to, width);
    QMap<int, float> highest;
    for (int k = scale.GetFrom(); k < scale.GetTo(); ++k) {
        const int pixel = int(scale.ToPixel(k));
        const float before = highest.value(pixel, -std::numeric_limits<float>::infinity());
        const float here =
            std::fmax(results.m_Values[0][size_t(k)], results.m_Values[1][size_t(k)]);
        highest.insert(pixel, std::fmax(before, here));
    }
    QMap<int, float> shown;
    for (const PositionValue& entry : computePositionValueList(results.Get(), scale))
        shown.insert(int(entry.m_X), entry.m_Value);
    QCOMPARE(shown, highest);

    const CenterPoints matches = computeCenterPoints(results.Get(), {3, 30}, 0.5F);
    size_t onScale = 0;
    for (const auto& centers : matches)
        onScale += StepsOfMatches({centers}, scale.GetFrom(), scale.GetTo() - 1).size();
    const std::vector<int> bins = computeMatchDistribution(matches, scale, 10);
    QCOMPARE(std::accumulate(bins.begin(), bins.end(), size_t(0)), onScale);
}

QTEST_MAIN(TestMatchExtraction)
#include "tst_matchextraction.moc"
