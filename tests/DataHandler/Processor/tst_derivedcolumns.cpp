#include "columnarithmetic.h"
#include "correlation.h"
#include "derivative.h"
#include "elevationangle.h"
#include "energy.h"
#include "movingaverage.h"
#include "normalize.h"
#include "rotation.h"
#include "testdata.h"
#include "tilt.h"
#include "vedba.h"
#include <QFile>
#include <QTest>
#include <cmath>
#include <numeric>
#include <random>

namespace
{

using Values = std::vector<double>;

constexpr double missing = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

// Not-a-number equals itself, infinities have their sign, all else is as near as the tolerance.
void compareColumns(ConstSpan<double> actual, const Values& expected, double tolerance = 0)
{
    QCOMPARE(actual.size(), int(expected.size()));
    for (int row = 0; row < actual.size(); ++row) {
        const double wanted = expected[size_t(row)];
        if (std::isfinite(wanted) && std::abs(actual[row] - wanted) <= tolerance)
            continue;
        QCOMPARE(qMakePair(row, QString::number(actual[row], 'g', 17)),
                 qMakePair(row, QString::number(wanted, 'g', 17)));
    }
}

// Single numbers.
void compareNumbers(const Values& actual, const Values& expected, double tolerance = 0)
{
    compareColumns(actual, expected, tolerance);
}

Values noise(size_t rows, double level)
{
    std::mt19937 random(7);
    std::normal_distribution<double> wiggle;
    Values values(rows);
    for (double& value : values)
        value = level + wiggle(random);
    return values;
}

double directSum(const Values& values, int from, int to)
{
    return double(std::accumulate(values.begin() + from, values.begin() + to, 0.0L));
}

std::unique_ptr<DataSet> whale()
{
    QFile file(QStringLiteral(TEST_DATA "/humpback_tilt.txt"));
    file.open(QIODevice::ReadOnly);
    const QByteArray text = file.readAll();
    return MakeDataSet(text.constData() + text.indexOf('\n', text.lastIndexOf('#')));
}

} // namespace

class TestDerivedColumns : public QObject
{
    Q_OBJECT
private slots:
    void windowsInClosedForm();
    void windowsAsDirectSums();
    void averageDoesNotDrift();
    void arithmetic();
    void derivativeLeavesRaggedRows();
    void normalizeEqualValues();
    void elevationAngles();
    void whaleAngles();
    void whaleNumbers();
    void rotation();
    void correlation();
};

void TestDerivedColumns::windowsInClosedForm()
{
    const Values values{1, 2, 4, 8, 16};
    compareColumns(MovingAverage(Values{1, -2, 0}, 0), {infinity, -infinity, missing});
    compareColumns(MovingAverage(values, 2), {1, 3.5, 7, 14, 16});
    compareColumns(MovingAverage(values, 5), {1, 2, 31.0 / 5, 8, 16});
    compareColumns(MovingAverage(values, 6), values);
    compareColumns(Energy(values, 2), {1, 5, 20, 80, 320});
}

void TestDerivedColumns::windowsAsDirectSums()
{
    Values all = noise(1000, 1e6);
    all[300] = missing;
    all[420] = infinity;
    all[440] = -infinity;
    for (const int window : {-3, 0, 1, 2, 7, 32, 101, 998, 1001, 1'000'000'000}) {
        for (const int rows : {0, 1, 2, 7, 421, 1000}) {
            const Values values(all.begin(), all.begin() + rows);
            const int half = std::clamp(window / 2, 0, rows);
            Values averages = values;
            for (int row = half; row < rows - half; ++row)
                averages[size_t(row)] = directSum(values, row - half, row + half + 1) / window;
            // An average by an even window may be half as much again as a value.
            compareColumns(MovingAverage(values, window), averages, 1e-12 * 1e6);

            Values energies(values.size(), 0.0);
            for (int row = 0; row < rows; ++row) {
                for (int i = std::max(row - half, 0); i < std::min(row + half, rows); ++i)
                    energies[size_t(row)] += values[size_t(i)] * values[size_t(i)];
            }
            compareColumns(Energy(values, window), energies, 1e-12 * 1e12 * (rows + 1));
        }
    }
}

void TestDerivedColumns::averageDoesNotDrift()
{
    const Values values = noise(2'000'000, 1e6);
    const DataColumn averages = MovingAverage(values, 2001);
    for (int row = 1000; row < int(values.size()) - 1000; row += 997)
        compareNumbers({averages[row]}, {directSum(values, row - 1000, row + 1001) / 2001},
                       1e-12 * 1e6);
}

void TestDerivedColumns::arithmetic()
{
    const auto data = MakeDataSet("6 4\n-1 0\n0 0\nnan 1\n");
    compareColumns(BasicFunction(*data, 0, 0, 1), {2, -1, 0, missing});
    compareColumns(BasicFunction(*data, 0, 1, 1), {10, -1, 0, missing});
    compareColumns(BasicFunction(*data, 0, 2, 1), {24, 0, 0, missing});
    compareColumns(BasicFunction(*data, 0, 3, 1), {1.5, -infinity, missing, missing});
    compareColumns(BasicFunction(*data, 0, 4, 1), {0, 0, 0, 0});
    compareColumns(Threshold(*data, 0, 0), {1, -1, 1, -1});
    compareColumns(ConstantValue(3, 7.5), {0, 7.5, 7.5});
}

void TestDerivedColumns::derivativeLeavesRaggedRows()
{
    // By the number of rows. In the last row the next column slides into the derivative's place.
    const Values slopes[] = {{}, {0}, {0, 7}, {0, 5, 7}};
    const Values next[] = {{}, {7}, {3, missing}, {3, 7, missing}};
    for (const int rows : {0, 1, 2, 3}) {
        const std::array<double, 3> values{1, 4, 9};
        const auto data = MakeColumn({values.begin(), values.begin() + rows});
        DataColumn differences = ForwardDifferences(*data, 0);
        data->AddAttribute(QStringLiteral("slope"), ATTRIBUTE_OTHER);
        AppendDerivative(*data, std::move(differences));
        data->AddColumn(QStringLiteral("next"), ATTRIBUTE_OTHER, DataColumn(rows, 7));
        compareColumns(data->GetColumn(1), slopes[rows]);
        compareColumns(data->GetColumn(2), next[rows]);
    }
}

void TestDerivedColumns::normalizeEqualValues()
{
    // Three times 0.1 is not 0.3, and the mean taken from it is not 0.1.
    for (const size_t rows : {1U, 3U, 1000U})
        compareColumns(Normalize(Values(rows, 0.1)), Values(rows, missing));
    compareColumns(Normalize({}), {});
    compareColumns(Normalize(Values{1, infinity}), {missing, missing});
    compareColumns(Normalize(Values{1e8 + 1, 1e8 - 1}), {1, -1});
}

// The standard library's arc tangent knows the angles; two units in the last place are allowed.
void TestDerivedColumns::elevationAngles()
{
    const auto check = [](double rise, double run) {
        const double expected = std::atan2(rise, run);
        const double angle = ElevationAngle(rise, run);
        QCOMPARE(std::signbit(angle), std::signbit(expected));
        compareNumbers({angle}, {expected}, std::abs(expected) * 4.5e-16);
    };
    const double tan1 = std::tan(std::atan(1.0) / 2);
    for (const double rise : {0.0, 1.0, 1e-300, tan1, 1 / tan1, 1e150, infinity}) {
        for (const double run : {0.0, 1.0, 1e-300, tan1, 1e150}) {
            check(rise, run);
            check(-rise, run);
        }
        QCOMPARE(ElevationAngle(rise, infinity), rise == infinity ? std::atan(1.0) : 0.0);
    }
    compareNumbers({ElevationAngle(missing, 1), ElevationAngle(1, missing)}, {missing, missing});
    std::mt19937 random(5);
    std::normal_distribution<double> wiggle;
    for (int i = 0; i < 100000; ++i)
        check(wiggle(random), std::ldexp(std::abs(wiggle(random)), i % 40 - 20));
}

void TestDerivedColumns::whaleAngles()
{
    const auto data = whale();
    QCOMPARE(data->GetRowCount(), 24);
    const std::vector<DataColumn> angles = PitchAndRoll(*data, {0, 1, 2});
    // The publishers' pitch is the angle of the x axis, the roll turns about that axis; they give
    // five decimals.
    constexpr double degrees = 180 / 3.141592653589793;
    Values pitch;
    Values roll;
    for (int row = 0; row < 24; ++row) {
        const double turn = data->GetValue(row, 3);
        pitch.push_back(std::asin(-std::cos(turn) * std::sin(data->GetValue(row, 4))) * degrees);
        roll.push_back(turn * degrees);
    }
    compareColumns(angles.at(0), pitch, 2e-3);
    compareColumns(angles.at(1), roll, 2e-3);
}

// Expected numbers: NumPy 1.24 on the same rows, with its float32 where single precision is meant.
void TestDerivedColumns::whaleNumbers()
{
    const auto data = whale();
    compareNumbers({Vedba(*data, {0, 1, 2})[5]}, {0.849005630619366}, 1e-15);
    const std::vector<DataColumn> unit = NormalizeVector(*data, {0, 1, 2});
    compareNumbers({unit[0][5], unit[1][5], unit[2][5]},
                   {0.8352829813957214, 0.16362670063972473, -0.524908185005188});
    const DataColumn normalized = Normalize(data->GetColumn(0));
    compareNumbers({normalized[0], normalized[5], normalized[23]},
                   {0.1061678618890562, 1.1128229205318818, -0.13587444900303944}, 1e-14);
    compareNumbers({CorrelateRanges(*data, 0, 2, 12, 10, 20)}, {-0.4744299801172578}, 1e-14);
    compareColumns(NormalizeVector(*MakeDataSet("0\n"), {0, 0, 0})[2], {missing});
}

// Expected numbers: NumPy 1.24, the rotation matrices written out in double precision.
void TestDerivedColumns::rotation()
{
    const auto data = MakeDataSet("1 2 3 30 50\n0.70916 0.13892 -0.44565 30 50\n1 2 3 -400 90\n"
                                  "1 2 3 0 0\n1 2 3 nan 0\n");
    const std::vector<DataColumn> turned = RotateVector(*data, {0, 1, 2}, 3, 4);
    compareColumns(turned[0], {3.3990738973123324, 0.21339828230286306, 1.0125581099838568, 1, 1},
                   1e-6);
    compareColumns(turned[1],
                   {0.23205080756887764, 0.3431332490937341, 3.460451715297574, 2, missing}, 1e-6);
    compareColumns(turned[2], {1.5467543642468191, -0.7466802133286814, -1, 3, missing}, 1e-6);
}

void TestDerivedColumns::correlation()
{
    const auto data = MakeColumn({1, 2, 3, 30, 20, 10, 7, 7, 7, 0.1, 0.1, 0.1, missing});
    const auto correlate = [&](int startA, int endA, int startB, int endB) {
        return CorrelateRanges(*data, 0, startA, endA, startB, endB);
    };
    compareNumbers({correlate(0, 3, 0, 3), correlate(0, 3, 3, 6)}, {1, -1}, 1e-15);
    // Equal values, 0.1 among them, a missing value, and no values at all.
    compareNumbers({correlate(0, 3, 6, 9), correlate(9, 12, 0, 3), correlate(0, 3, 10, 13),
                    correlate(2, 2, 4, 4)},
                   Values(4, missing));
    // Unequal lengths, beyond both ends, reversed, no such attribute.
    compareNumbers({correlate(0, 3, 0, 2), correlate(0, 3, 11, 14), correlate(-1, 2, 0, 3),
                    correlate(3, 0, 6, 3), CorrelateRanges(*data, 1, 0, 3, 0, 3)},
                   Values(5, 0));
}

QTEST_APPLESS_MAIN(TestDerivedColumns)
#include "tst_derivedcolumns.moc"
