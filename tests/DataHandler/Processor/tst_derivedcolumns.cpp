#include "columnarithmetic.h"
#include "correlation.h"
#include "derivative.h"
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

constexpr double missing = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

// Both not-a-number, the same infinity, or nearer than the tolerance.
bool isNear(double actual, double expected, double tolerance)
{
    if (!std::isfinite(expected))
        return std::isnan(expected) ? std::isnan(actual) : actual == expected;
    return std::abs(actual - expected) <= tolerance;
}

void compareColumns(const Column& actual, const Column& expected, double tolerance = 0)
{
    QCOMPARE(actual.size(), expected.size());
    for (size_t row = 0; row < actual.size(); ++row) {
        if (!isNear(actual[row], expected[row], tolerance))
            QFAIL(qPrintable(QStringLiteral("row %1: %2 instead of %3")
                                 .arg(row)
                                 .arg(actual[row], 0, 'g', 17)
                                 .arg(expected[row], 0, 'g', 17)));
    }
}

Column noise(size_t rows, double level)
{
    std::mt19937 random(7);
    std::normal_distribution<double> wiggle;
    Column values(rows);
    for (double& value : values)
        value = level + wiggle(random);
    return values;
}

double directSum(const Column& values, int from, int to)
{
    return double(std::accumulate(values.begin() + from, values.begin() + to, 0.0L));
}

std::unique_ptr<DataSet> whale()
{
    QFile file(QStringLiteral(TEST_DATA "/humpback_tilt.txt"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no %s", qPrintable(file.fileName()));
    QByteArray rows;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        rows += line.startsWith('#') ? QByteArray() : line;
    }
    return MakeDataSet(rows.constData());
}

} // namespace

class TestDerivedColumns : public QObject
{
    Q_OBJECT
private slots:
    void windowsInClosedForm();
    void windowsAsDirectSums_data();
    void windowsAsDirectSums();
    void averageDoesNotDrift();
    void arithmetic();
    void derivativeLeavesRaggedRows();
    void normalizeEqualValues();
    void whaleAngles();
    void whaleNumbers();
    void rotation();
    void correlation();
};

void TestDerivedColumns::windowsInClosedForm()
{
    const Column values{1, 2, 4, 8, 16};
    compareColumns(MovingAverage({1, -2, 0}, 0), {infinity, -infinity, missing});
    compareColumns(MovingAverage(values, 1), values);
    compareColumns(MovingAverage(values, 2), {1, 3.5, 7, 14, 16});
    compareColumns(MovingAverage(values, 5), {1, 2, 31.0 / 5, 8, 16});
    compareColumns(MovingAverage(values, 6), values);
    compareColumns(Energy(values, 1), {0, 0, 0, 0, 0});
    compareColumns(Energy(values, 2), {1, 5, 20, 80, 320});
    compareColumns(Energy({-3, 4}, 1000), {25, 25});
}

void TestDerivedColumns::windowsAsDirectSums_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("window");
    for (const int rows : {0, 1, 2, 7, 1000}) {
        for (const int window : {-3, 0, 1, 2, 7, 32, 101, 998, 1001, 1'000'000'000})
            QTest::addRow("%d rows, window %d", rows, window) << rows << window;
    }
}

void TestDerivedColumns::windowsAsDirectSums()
{
    QFETCH(int, rows);
    QFETCH(int, window);
    Column values = noise(size_t(rows), 1e6);
    if (rows == 1000) {
        values[300] = missing;
        values[420] = infinity;
        values[440] = -infinity;
        values[999] = infinity;
    }
    Column squares = values;
    for (double& square : squares)
        square *= square;
    const int half = std::clamp(window / 2, 0, rows);
    Column averages = values;
    Column energies(values.size(), 0.0);
    for (int row = 0; row < rows; ++row) {
        if (half <= row && row < rows - half)
            averages[size_t(row)] = directSum(values, row - half, row + half + 1) / window;
        if (half > 0)
            energies[size_t(row)] =
                directSum(squares, std::max(row - half, 0), std::min(row + half, rows));
    }
    // An average by an even window may be three times a value, an energy has all squares.
    compareColumns(MovingAverage(values, window), averages, 1e-12 * 1e6);
    compareColumns(Energy(values, window), energies, 1e-12 * 1e12 * (rows + 1));
}

void TestDerivedColumns::averageDoesNotDrift()
{
    const Column values = noise(2'000'000, 1e6);
    const Column averages = MovingAverage(values, 2001);
    for (int row = 1000; row < int(values.size()) - 1000; row += 997) {
        const double expected = directSum(values, row - 1000, row + 1001) / 2001;
        QVERIFY2(isNear(averages[size_t(row)], expected, 1e-12 * expected),
                 qPrintable(QString::number(row)));
    }
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
    for (const size_t rows : {0U, 1U, 2U, 3U}) {
        Column values{1, 4, 9};
        values.resize(rows);
        const auto data = MakeColumn(values);
        const Column differences = ForwardDifferences(*data, 0);
        data->AddAttribute(QStringLiteral("slope"), ATTRIBUTE_OTHER);
        AppendDerivative(*data, differences);
        data->AddAttribute(QStringLiteral("next"), ATTRIBUTE_OTHER);
        AppendColumn(*data, Column(rows, 7));
        // In the last row the next column has slid into the derivative's place.
        const Column slopes = rows < 2 ? Column{0} : rows == 2 ? Column{0, 7} : Column{0, 5, 7};
        const Column next = rows < 2    ? Column{7}
                            : rows == 2 ? Column{3, missing}
                                        : Column{3, 7, missing};
        compareColumns(data->CopyColumn(1), rows == 0 ? Column() : slopes);
        compareColumns(data->CopyColumn(2), rows == 0 ? Column() : next);
    }
}

void TestDerivedColumns::normalizeEqualValues()
{
    // Three times 0.1 is not 0.3, and the mean taken from it is not 0.1.
    for (const size_t rows : {1U, 3U, 1000U})
        compareColumns(Normalize(Column(rows, 0.1)), Column(rows, missing));
    compareColumns(Normalize({}), {});
    compareColumns(Normalize({1, infinity}), {missing, missing});
    compareColumns(Normalize({1e8 + 1, 1e8 - 1}), {1, -1});
}

void TestDerivedColumns::whaleAngles()
{
    const auto data = whale();
    QCOMPARE(data->GetRowCount(), 24);
    const std::vector<Column> angles = PitchAndRoll(*data, {0, 1, 2});
    // The publishers' pitch is the angle of the x axis, the roll turns about that axis; they give
    // five decimals.
    Column pitch;
    Column roll;
    for (int row = 0; row < data->GetRowCount(); ++row) {
        const double sourcePitch = data->GetRow(row)->GetValue(3);
        const double sourceRoll = data->GetRow(row)->GetValue(4);
        pitch.push_back(std::asin(-std::cos(sourcePitch) * std::sin(sourceRoll)) * 180 / M_PI);
        roll.push_back(sourcePitch * 180 / M_PI);
    }
    compareColumns(angles.at(0), pitch, 2e-3);
    compareColumns(angles.at(1), roll, 2e-3);
    // atan(1/2) and atan(2) from a table; straight down and no gravity at all.
    const auto ends = MakeDataSet("0 1 2\n-2 0 1\n0 0 -1\n0 0 0\n");
    compareColumns(PitchAndRoll(*ends, {0, 1, 2})[0], {26.56505117707799, 0, 0, 0}, 1e-13);
    compareColumns(PitchAndRoll(*ends, {0, 1, 2})[1], {0, -63.43494882292201, 0, 0}, 1e-13);
}

// Expected numbers: NumPy 1.24 on the same rows, with its float32 where single precision is meant.
void TestDerivedColumns::whaleNumbers()
{
    const auto data = whale();
    const Column vedba = Vedba(*data, {0, 1, 2});
    QVERIFY(isNear(vedba[5], 0.849005630619366, 1e-15));
    QVERIFY(isNear(vedba[11], 1.0860688939119814, 1e-15));
    const std::vector<Column> unit = NormalizeVector(*data, {0, 1, 2});
    compareColumns({unit[0][5], unit[1][5], unit[2][5]},
                   {0.8352829813957214, 0.16362670063972473, -0.524908185005188});
    const Column normalized = Normalize(data->CopyColumn(0));
    compareColumns({normalized[0], normalized[5], normalized[23]},
                   {0.1061678618890562, 1.1128229205318818, -0.13587444900303944}, 1e-14);
    QVERIFY(isNear(CorrelateRanges(*data, 0, 2, 12, 10, 20), -0.4744299801172578, 1e-14));
    const auto zero = MakeDataSet("0\n");
    QVERIFY(std::isnan(NormalizeVector(*zero, {0, 0, 0})[2][0]));
}

// Expected numbers: NumPy 1.24, the rotation matrices written out in double precision.
void TestDerivedColumns::rotation()
{
    const auto data = MakeDataSet("1 2 3 30 50\n0.70916 0.13892 -0.44565 30 50\n1 2 3 -400 90\n"
                                  "1 2 3 0 0\n1 2 3 nan 0\n");
    const std::vector<Column> turned = RotateVector(*data, {0, 1, 2}, 3, 4);
    compareColumns(turned[0], {3.3990738973123324, 0.21339828230286306, 1.0125581099838568, 1, 1},
                   1e-6);
    compareColumns(turned[1],
                   {0.23205080756887764, 0.3431332490937341, 3.460451715297574, 2, missing}, 1e-6);
    compareColumns(turned[2], {1.5467543642468191, -0.7466802133286814, -1, 3, missing}, 1e-6);
}

void TestDerivedColumns::correlation()
{
    const auto data = MakeColumn({1, 2, 3, 30, 20, 10, 7, 7, 7, 0.1, 0.1, 0.1, missing});
    const auto correlate = [&](int startA, int endA, int startB, int endB, int attribute = 0) {
        return CorrelateRanges(*data, attribute, startA, endA, startB, endB);
    };
    QCOMPARE(correlate(0, 3, 0, 3), 1.0);
    QCOMPARE(correlate(0, 3, 3, 6), -1.0);
    QVERIFY(std::isnan(correlate(0, 3, 6, 9)));
    QVERIFY(std::isnan(correlate(9, 12, 0, 3)));
    QVERIFY(std::isnan(correlate(0, 3, 10, 13)));
    QVERIFY(std::isnan(correlate(2, 2, 4, 4)));
    QCOMPARE(correlate(0, 3, 0, 2), 0.0);
    QCOMPARE(correlate(0, 3, 11, 14), 0.0);
    QCOMPARE(correlate(-1, 2, 0, 3), 0.0);
    QCOMPARE(correlate(3, 0, 6, 3), 0.0);
    QCOMPARE(correlate(0, 3, 0, 3, 1), 0.0);
    QCOMPARE(correlate(0, 3, 0, 3, -1), 0.0);
}

QTEST_APPLESS_MAIN(TestDerivedColumns)
#include "tst_derivedcolumns.moc"
