#include "pipextractor.h"

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
    QStringList texts;
    for (const PIPSegment& segment : segments)
        texts.append(QStringLiteral("%1-%2@%3=%4")
                         .arg(segment.m_Start)
                         .arg(segment.m_End)
                         .arg(segment.m_BestIndex)
                         .arg(segment.m_BestDistance, 0, 'g', 17));
    return texts.join(QLatin1Char(' '));
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

std::vector<double> makeCurve(const QByteArray& shape, int rows)
{
    std::mt19937 random(7);
    std::normal_distribution<double> normal;
    std::vector<double> values;
    double walk = 0.0;
    for (int i = 0; i < rows; ++i) {
        const double noise = normal(random);
        walk += noise;
        const double gap = shape == "infinite" ? infinite : missing;
        if (shape == "flat")
            values.push_back(0.5);
        else if (shape == "ramp")
            values.push_back(0.25 * i - 40.0);
        else if (shape == "whole")
            values.push_back(std::round(noise));
        else if (shape == "tiny")
            values.push_back(1e-9 * noise);
        else if (shape == "huge")
            values.push_back(1e200 * noise);
        else if (shape == "gaps" || shape == "infinite")
            values.push_back(i % 700 > 300 || i % 97 == 5 ? gap : walk);
        else
            values.push_back(walk + 3.0);
    }
    return values;
}

} // namespace

class TestPipExtractor : public QObject
{
    Q_OBJECT
private slots:
    void splitsAsAPlainScan_data();
    void splitsAsAPlainScan();
    void stops_data();
    void stops();
    void shortRecordings();
    void namesOfChoices();
};

void TestPipExtractor::splitsAsAPlainScan_data()
{
    QTest::addColumn<QByteArray>("shape");
    for (const char* shape : {"walk", "flat", "ramp", "whole", "tiny", "huge", "gaps", "infinite"})
        QTest::newRow(shape) << QByteArray(shape);
}

// Down to the last bit, ties included, with segments over many blocks of rows and inside one.
void TestPipExtractor::splitsAsAPlainScan()
{
    QFETCH(QByteArray, shape);
    for (const int rows : {3, 40, 256, 257, 3000}) {
        const std::vector<double> values = makeCurve(shape, rows);
        for (int measure = 0; measure < 4; ++measure) {
            const QString expected = toText(PlainSplitting(values, measure).Split(60, 0.0, 0));
            QCOMPARE(split(values, measure, 60, 0.0, 0), expected);
        }
    }
}

void TestPipExtractor::stops_data()
{
    QTest::addColumn<int>("partitions");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<int>("stopping");
    QTest::addColumn<int>("segments");
    // Three points stand out by 40, 20 and 10 from a line at 0; no row is 39 from the next lines.
    QTest::newRow("partitions + 1 splits") << 0 << 0.0 << 0 << 2;
    QTest::newRow("distance ends partitions early") << 50 << 39.0 << 0 << 2;
    QTest::newRow("nothing far enough") << 50 << 41.0 << 0 << 1;
    QTest::newRow("distance alone splits first") << 0 << 41.0 << 1 << 2;
    QTest::newRow("distance alone") << 0 << 39.0 << 1 << 3;
    QTest::newRow("both, few partitions") << 1 << 0.0 << 2 << 3;
    QTest::newRow("both, far") << 50 << 41.0 << 2 << 2;
    QTest::newRow("unknown") << 50 << 0.0 << 3 << 2;
    QTest::newRow("no number") << 50 << missing << 1 << 2;
    // Masked rows run out before the splits do.
    QTest::newRow("all there is") << 1000 << 0.0 << 0 << 0;
    QTest::newRow("below every distance") << 1000 << -200.0 << 1 << 0;
}

void TestPipExtractor::stops()
{
    QFETCH(int, partitions);
    QFETCH(double, minimum);
    QFETCH(int, stopping);
    QFETCH(int, segments);
    std::vector<double> values(100, 0.0);
    values[20] = 40.0;
    values[50] = 20.0;
    values[80] = 10.0;
    const QString found = split(values, 1, partitions, minimum, stopping);
    QCOMPARE(found, toText(PlainSplitting(values, 1).Split(partitions, minimum, stopping)));
    if (segments > 0)
        QCOMPARE(found.count(QLatin1Char('@')), segments);
}

void TestPipExtractor::shortRecordings()
{
    QCOMPARE(split({}, 1, 9, 0.0, 0), QString());
    QCOMPARE(split({5.0}, 1, 9, 0.0, 0), QStringLiteral("0-0@-1=-100"));
    QCOMPARE(split({5.0, 7.0}, 1, 9, 0.0, 1), QStringLiteral("0-1@-1=-100"));
    const auto data = MakeDataSet("1\n5\n1\n");
    PIPExtractor extractor;
    extractor.extract(0, 9, 0.0, 0);
    extractor.setDataSet(data.get());
    for (const int attribute : {-1, 1}) {
        extractor.extract(attribute, 9, 0.0, 0);
        QVERIFY(extractor.getSegments().empty());
    }
}

void TestPipExtractor::namesOfChoices()
{
    QCOMPARE(PIPExtractor::GetMeasureName(2), QStringLiteral("Perpendicular Distance"));
    QCOMPARE(PIPExtractor::GetMeasureName(3), QStringLiteral("Error"));
    QCOMPARE(PIPExtractor::GetParameterName(-1), QStringLiteral("Error"));
}

QTEST_MAIN(TestPipExtractor)
#include "tst_pipextractor.moc"
