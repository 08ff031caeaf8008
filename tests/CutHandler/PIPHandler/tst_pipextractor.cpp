#include "pipextractor.h"
#include "scriptedprogress.h"

#include "testdata.h"
#include <QtTest>
#include <cmath>
#include <limits>
#include <random>

namespace
{

constexpr double missing = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

double distance(int measure, double s, double e, double ys, double ye, double i, double y)
{
    const double length = e - s;
    const double rise = ye - ys;
    const double t = i - s;
    if (measure == 0)
        return std::sqrt((e - i) * (e - i) + (ye - y) * (ye - y)) +
               std::sqrt((ys - y) * (ys - y) + t * t);
    if (measure == 1)
        return std::abs((ys - y) * length + t * rise) / std::sqrt(rise * rise + length * length);
    if (measure != 2)
        return 0.0;
    const double m = rise / length;
    const double squared = m * m;
    const double xc = (m * y + i + ye * m - e * squared) / (squared + 1.0);
    const double up = xc * m - e * m + ye - y;
    return std::sqrt(up * up + (xc - i) * (xc - i));
}

// Every step looks at every row and every segment.
class PlainSplitting
{
public:
    PlainSplitting(std::vector<double> values, int measure)
        : m_Values(std::move(values)), m_Mask(m_Values.size()), m_Measure(measure)
    {
    }

    std::vector<PIPSegment> Split(int partitions, double minimumDistance, int stopping)
    {
        const int rows = int(m_Values.size());
        std::vector<PIPSegment> segments{evaluated(0, rows - 1)};
        for (int iterations = 1;; ++iterations) {
            size_t best = 0;
            for (size_t i = 0; i < segments.size(); ++i) {
                if (segments[i].m_BestDistance >= segments[best].m_BestDistance)
                    best = i;
            }
            const PIPSegment old = segments[best];
            if (old.m_BestDistance < 0 || (stopping == 0 && old.m_BestDistance < minimumDistance))
                return segments;
            for (int i = std::max(old.m_BestIndex - 2, 0);
                 i < std::min(old.m_BestIndex + 2, rows - 1); ++i)
                m_Mask[size_t(i)] = 1;
            segments[best] = evaluated(old.m_Start, old.m_BestIndex);
            segments.insert(segments.begin() + std::ptrdiff_t(best) + 1,
                            evaluated(old.m_BestIndex, old.m_End));
            const bool areFew = iterations <= partitions;
            const bool isFar = old.m_BestDistance >= minimumDistance;
            if (stopping > 2 || (stopping != 1 && !areFew) || (stopping != 0 && !isFar))
                return segments;
        }
    }

private:
    PIPSegment evaluated(int start, int end) const
    {
        PIPSegment segment{start, end};
        for (int i = start; i < end && end - start >= 2; ++i) {
            if (m_Mask[size_t(i)])
                continue;
            const double found =
                distance(m_Measure, start, end, std::trunc(m_Values[size_t(start)]),
                         std::trunc(m_Values[size_t(end)]), i, m_Values[size_t(i)]);
            if (found >= segment.m_BestDistance) {
                segment.m_BestDistance = found;
                segment.m_BestIndex = i;
            }
        }
        return segment;
    }

    std::vector<double> m_Values;
    std::vector<int> m_Mask;
    int m_Measure;
};

QString toText(const std::vector<PIPSegment>& segments)
{
    QString text;
    for (const PIPSegment& segment : segments)
        text += QString::asprintf("%d-%d@%d=%.17g ", segment.m_Start, segment.m_End,
                                  segment.m_BestIndex, segment.m_BestDistance);
    return text;
}

QString split(const std::vector<double>& values, int measure, int partitions,
              double minimumDistance, int stopping)
{
    const auto data = MakeColumn(values);
    PIPExtractor extractor;
    extractor.setDataSet(data.get());
    extractor.setMeasure(measure);
    extractor.extract(0, partitions, minimumDistance, stopping);
    return toText(extractor.getSegments());
}

// One of several kinds of curve: ties, values that are no numbers, rounding that tells.
std::vector<double> makeCurve(int kind, int rows)
{
    std::mt19937 random(7);
    std::normal_distribution<double> normal;
    std::vector<double> values;
    double walk = 3.0;
    for (int i = 0; i < rows; ++i) {
        const double noise = normal(random);
        walk += noise;
        const bool isGap = i % 700 > 300 || i % 97 == 5;
        const double kinds[] = {walk,
                                0.5,
                                0.25 * i - 40.0,
                                1e-9 * noise,
                                1e200 * noise,
                                std::round(noise),
                                isGap ? missing : walk,
                                i % 97 == 5 ? infinite : walk};
        values.push_back(kinds[kind]);
    }
    return values;
}

} // namespace

class TestPipExtractor : public QObject
{
    Q_OBJECT
private slots:
    void splitsAsAPlainScan();
    void stopsAsAPlainScan();
    void nothingToSplit();
};

// Down to the last bit, with segments over many blocks of rows and inside one.
void TestPipExtractor::splitsAsAPlainScan()
{
    for (int kind = 0; kind < 8; ++kind) {
        for (const int rows : {1, 2, 3, 40, 256, 257, 3000, 9'000}) {
            const std::vector<double> values = makeCurve(kind, rows);
            for (int measure = 0; measure < 4; ++measure)
                QCOMPARE(split(values, measure, 60, 0.0, 0),
                         toText(PlainSplitting(values, measure).Split(60, 0.0, 0)));
        }
    }
}

// Also where the rows run out first.
void TestPipExtractor::stopsAsAPlainScan()
{
    const std::vector<double> values = makeCurve(0, 100);
    for (int stopping = 0; stopping < 4; ++stopping) {
        for (const double minimum : {0.0, 2.0, 5.0, 1000.0, -200.0, missing}) {
            for (const int partitions : {0, 1, 7, 1000})
                QCOMPARE(split(values, 1, partitions, minimum, stopping),
                         toText(PlainSplitting(values, 1).Split(partitions, minimum, stopping)));
        }
    }
}

void TestPipExtractor::nothingToSplit()
{
    QCOMPARE(split({}, 1, 9, 0.0, 0), QString());
    const auto data = MakeDataSet("1\n5\n1\n");
    PIPExtractor extractor;
    extractor.extract(0, 9, 0.0, 0);
    extractor.setDataSet(data.get());
    for (const int attribute : {-1, 1}) {
        extractor.extract(attribute, 9, 0.0, 0);
        QVERIFY(extractor.getSegments().empty());
    }
    ScriptedProgress stop([](int) { return true; });
    QVERIFY(!extractor.extract(0, 9, 0.0, 0, stop));
    QVERIFY(extractor.getSegments().empty());
}

QTEST_MAIN(TestPipExtractor)
#include "tst_pipextractor.moc"
