#include "persistenceextractor.h"

#include "scriptedprogress.h"
#include <QtTest>
#include <limits>
#include <numeric>
#include <random>

namespace
{

constexpr float missing = std::numeric_limits<float>::quiet_NaN();
constexpr float infinite = std::numeric_limits<float>::infinity();

// "minimum-maximum:persistence" of all pairs, in their order.
QString pairsText(const std::vector<PairedExtrema>& pairs)
{
    QString text;
    for (const PairedExtrema& pair : pairs)
        text += QString::asprintf("%d-%d:%g ", pair.m_MinIndex, pair.m_MaxIndex,
                                  double(pair.m_Persistence));
    return text.trimmed();
}

QString pairsText(const std::vector<float>& data, float threshold)
{
    PersistenceExtractor extractor;
    extractor.extract(data);
    return pairsText(extractor.getPairs(threshold));
}

// By definition, for values that all differ: from each local minimum the lower one of the two
// passes that lead to something deeper.
std::vector<PairedExtrema> pairsByWalking(const std::vector<float>& data)
{
    const int count = int(data.size());
    const auto at = [&](int i) { return data[size_t(i)]; };
    std::vector<PairedExtrema> pairs;
    for (int i = 0; i < count; ++i) {
        int pass = -1;
        for (const int step : {-1, 1}) {
            int highest = i;
            int j = i + step;
            while (j >= 0 && j < count && at(j) > at(i)) {
                highest = at(j) > at(highest) ? j : highest;
                j += step;
            }
            const bool isDeeper = j >= 0 && j < count;
            if (isDeeper && (pass == -1 || at(highest) < at(pass)))
                pass = highest;
        }
        if (pass != -1 && pass != i)
            pairs.push_back({i, pass, at(pass) - at(i)});
    }
    std::sort(pairs.begin(), pairs.end(),
              [](auto& a, auto& b) { return a.m_Persistence < b.m_Persistence; });
    return pairs;
}

} // namespace

class TestPersistenceExtractor : public QObject
{
    Q_OBJECT
private slots:
    void pairs_data();
    void pairs();
    void randomCurves();
    void longCurveUnlessStopped();
};

void TestPersistenceExtractor::pairs_data()
{
    using Values = std::vector<float>;
    QTest::addColumn<Values>("data");
    QTest::addColumn<float>("threshold");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const Values& data, float threshold, const char* text) {
        QTest::newRow(name) << data << threshold << QString::fromLatin1(text);
    };
    // Minima and persistences as scipy.signal.peak_prominences (SciPy 1.10.1) gives them for the
    // negated values between two walls of -1e9.
    const Values example{3, 7, 2, 9, 4, 6, 5, 8, 1, 6, 2, 3, 0, 5, 4, 7};
    row("example", example, 0, "6-5:1 10-11:1 14-13:1 0-1:4 4-7:4 8-9:5 2-3:7");
    row("at the threshold", example, 4, "0-1:4 4-7:4 8-9:5 2-3:7");
    row("below zero", example, -1, "");
    row("no threshold", example, missing, "");
    row("empty", {}, 0, "");
    row("one value", {4}, 0, "");
    row("equal values", {2, 2, 2, 2, 2}, 0, "");
    row("rising", {1, 2, 3, 4, 5}, 0, "");
    row("equal minima: the right one goes", {1, 5, 1}, 0, "2-1:4");
    row("equal minima one after the other", {1, 5, 1, 3, 1, 5, 1}, 0, "4-3:2 2-1:4 6-5:4");
    row("plateau as maximum", {1, 5, 5, 5, 2}, 0, "4-3:3");
    row("gaps are passed over", {missing, 1, missing, 5, missing, missing, 2, missing}, 0, "6-3:3");
    row("infinite", {1, infinite, 2, -infinite, 3, 1}, 0, "5-4:2 0-1:inf");
    row("equal infinities", {infinite, infinite, infinite, 1}, 0, "0-2:0");
}

void TestPersistenceExtractor::pairs()
{
    QFETCH(std::vector<float>, data);
    QFETCH(float, threshold);
    QFETCH(QString, text);
    QCOMPARE(pairsText(data, threshold), text);
}

void TestPersistenceExtractor::randomCurves()
{
    std::mt19937 random(3);
    std::normal_distribution<float> normal;
    for (int run = 0; run < 60; ++run) {
        std::vector<float> data;
        float walk = 0.0F;
        for (int i = 0; i < run * 10; ++i) {
            walk = normal(random) + (run % 2 ? walk : 0.0F);
            data.push_back(walk);
        }
        QCOMPARE(pairsText(data, 0.0F), pairsText(pairsByWalking(data)));
    }
}

// So long that it is sorted piece by piece.
void TestPersistenceExtractor::longCurveUnlessStopped()
{
    std::vector<float> data(500'000);
    std::iota(data.begin(), data.end(), 0.0F);
    std::shuffle(data.begin(), data.end(), std::mt19937(4));
    const auto byMinimum = [](std::vector<PairedExtrema> pairs) {
        std::sort(pairs.begin(), pairs.end(),
                  [](auto& a, auto& b) { return a.m_MinIndex < b.m_MinIndex; });
        return pairsText(pairs);
    };
    PersistenceExtractor extractor;
    int last = 0;
    ScriptedProgress watch([&](int value) {
        last = value;
        return false;
    });
    QVERIFY(extractor.extract(data, watch));
    QVERIFY(byMinimum(extractor.getPairs(0.0F)) == byMinimum(pairsByWalking(data)));
    // While it sorts, while it joins what is sorted, and while it floods.
    for (const int stop : {0, last / 2, last}) {
        ScriptedProgress progress([=](int value) { return value >= stop; });
        QVERIFY(!extractor.extract(data, progress));
        QVERIFY(extractor.getPairs(0.0F).empty());
    }
}

QTEST_MAIN(TestPersistenceExtractor)
#include "tst_persistenceextractor.moc"
