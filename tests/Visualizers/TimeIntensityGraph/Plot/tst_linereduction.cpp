#include "linescene.h"
#include "pixelcolumns.h"
#include "slittedaxis.h"
#include <QtTest>
#include <cmath>

namespace
{
/// A shape from 0 to 1 over the recording, with noise.
Column makeSignal(int rows, double noise, double (*shape)(double place))
{
    Column values;
    quint32 random = 7;
    for (int i = 0; i < rows; ++i) {
        random = random * 1664525U + 1013904223U;
        values.push_back(shape(double(i) / rows) + noise * double(random >> 8) / (1U << 24));
    }
    return values;
}

double sine(double place)
{
    return std::sin(place * 7);
}

double steps(double place)
{
    return int(place * 37) * 7 % 5;
}

double spikes(double place)
{
    const double inSpike = place * 25 - std::floor(place * 25);
    return inSpike < 1e-3 ? 1 + int(place * 25) % 3 : 0;
}

/// Few rows in the middle take most of the width, and the last of them stands right of the rows
/// behind it. As the simplest of lenses it only says where its rows stand, and where they turn
/// back.
class LensAxis : public TimeAxis
{
public:
    float ToPixel(int index) const override
    {
        const int in = m_LastIndex / 2;
        const int out = in + lensRows;
        const auto part = [this](double from, double to, int row, int rows) {
            return float(width() * (from + (to - from) * row / rows));
        };
        if (index < in)
            return part(0, 0.2, index, in);
        return index <= out ? part(0.2, 0.8, index - in, lensRows - 2)
                            : part(0.8, 1, index - out, m_LastIndex - out);
    }
    int OrderedEnd(int first) const override
    {
        const int out = m_LastIndex / 2 + lensRows;
        return first <= out ? out + 1 : TimeAxis::OrderedEnd(first);
    }

private:
    static constexpr int lensRows = 90;
};

/// Rows from right to left.
class FallingAxis : public TimeAxis
{
public:
    float ToPixel(int index) const override { return float(width()) - TimeAxis::ToPixel(index); }
};

QImage scaledDown(const QImage& large, const QSize& size)
{
    QImage plain = large;
    plain.setDevicePixelRatio(1);
    return plain.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// The mean difference over the pixels that carry ink in either picture.
double difference(const QImage& a, const QImage& b)
{
    qint64 sum = 0;
    qint64 inked = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const int grayA = qGray(a.pixel(x, y));
            const int grayB = qGray(b.pixel(x, y));
            inked += grayA < 255 || grayB < 255;
            sum += std::abs(grayA - grayB);
        }
    }
    return inked ? double(sum) / double(inked) : 0;
}
} // namespace

Q_DECLARE_METATYPE(Column)
Q_DECLARE_METATYPE(Maker)
Q_DECLARE_METATYPE(RowSpan)

class TestLineReduction : public QObject
{
    Q_OBJECT
private slots:
    void looksAsIfEveryRowWereDrawn_data();
    void looksAsIfEveryRowWereDrawn();
    void groupsRowsByPixels();
    void neverLosesASingleRow();
    void joinsAcrossTiles_data();
    void joinsAcrossTiles();
    void leavesGapsForMissingValues_data();
    void leavesGapsForMissingValues();
};

void TestLineReduction::looksAsIfEveryRowWereDrawn_data()
{
    QTest::addColumn<Column>("values");
    QTest::addColumn<Maker>("axis");
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("limit");
    // Where rows follow each other smoothly, the full line itself breaks into dots, its strokes
    // being shorter than painters can place: there only the ideal picture counts.
    constexpr double close = 4;
    constexpr double any = 255;
    const std::vector<std::tuple<const char*, double, double (*)(double)>> shapes{
        {"noisy spikes", 0.1, spikes}, {"noisy steps", 0.1, steps}, {"spikes", 0.0, spikes},
        {"steps", 0.0, steps},         {"noisy sine", 0.5, sine},   {"sine", 0.0, sine}};
    // As many rows as stand 80 to a pixel, on axes that are not linear at the most. These and sharp
    // screens get the first shapes only.
    const std::vector<std::tuple<const char*, Maker, int, double, size_t>> axes{
        {"linear", &make<TimeAxis>, 8300, 1.0, 6},
        {"sharp screen", &make<TimeAxis>, 16600, 2.0, 2},
        {"slitted", &make<SlittedAxis>, 4000, 1.0, 3},
        {"lens", &make<LensAxis>, 3300, 1.0, 3}};
    for (const auto& [axisName, axis, rows, scale, shapeCount] : axes) {
        for (size_t i = 0; i < shapeCount; ++i) {
            const auto& [shapeName, noise, shape] = shapes[i];
            QTest::addRow("%s, %s", shapeName, axisName)
                << makeSignal(rows, noise, shape) << axis << scale
                << (noise == 0 && shape == sine ? any : close);
        }
    }
    QTest::newRow("few rows") << makeSignal(700, 0.5, sine) << Maker(&make<TimeAxis>) << 1.0
                              << close;
    QTest::newRow("falling") << makeSignal(8300, 0.1, steps) << Maker(&make<FallingAxis>) << 1.0
                             << close;
}

void TestLineReduction::looksAsIfEveryRowWereDrawn()
{
    constexpr int extent = 100;
    QFETCH(Column, values);
    QFETCH(Maker, axis);
    QFETCH(double, scale);
    QFETCH(double, limit);
    Scene scene(values, extent, axis());
    const auto plain = [&](QPainter& painter) { scene.PaintPlain(painter); };
    const QImage fast = render(scene.m_Line, 0, scale, extent);
    const QImage full = render(0, scale, plain, extent);
    const double toFull = difference(fast, full);
    QVERIFY2(toFull <= limit, qPrintable(QString::number(toFull)));
    const QImage ideal = scaledDown(render(0, 4, plain, extent), full.size());
    const double fastToIdeal = difference(fast, ideal);
    const double fullToIdeal = difference(full, ideal);
    QVERIFY2(fastToIdeal <= fullToIdeal + 0.05,
             qPrintable(QStringLiteral("%1 against %2").arg(fastToIdeal).arg(fullToIdeal)));
}

void TestLineReduction::groupsRowsByPixels()
{
    // As on a sharp screen; rows 500 on stand at the start of the axis.
    constexpr double columnWidth = 1 / 16.0;
    constexpr int origin = 500;
    constexpr RowSpan rows{origin, origin + 90000};
    for (const Maker maker : {Maker(&make<TimeAxis>), Maker(&make<SlittedAxis>),
                              Maker(&make<LensAxis>), Maker(&make<FallingAxis>)}) {
        const Axis axis = maker();
        axis->SetEnd({width, 0});
        axis->SetNumberOfPoints(rows.GetLength());
        const PixelColumns columns(*axis, origin, columnWidth);
        const auto extent = [&](const RowSpan& column) {
            double left = width;
            double right = 0;
            for (int row = column.m_From; row < column.m_To; ++row) {
                left = std::min(left, axis->ToExactPixel(row - origin));
                right = std::max(right, axis->ToExactPixel(row - origin));
            }
            return right - left;
        };
        // Also from each of the first rows of the lens on, since few rows are handed out by fours.
        for (const int first : {0, 45001, 45002, 45003, 45004}) {
            int count = 0;
            for (RowSpan rest{origin + first, rows.m_To}; !rest.IsEmpty(); ++count) {
                const int end = columns.GetFirst(rest).m_End;
                const bool isFew = end - rest.m_From <= PixelColumns::FewestRows;
                QVERIFY(end > rest.m_From);
                // Whole blocks of rows reach beyond the edge.
                QVERIFY(isFew || extent({rest.m_From, end}) <= 2 * columnWidth);
                rest.m_From = end;
            }
            QVERIFY(count < 1.2 * width / columnWidth);
        }
    }
}

void TestLineReduction::neverLosesASingleRow()
{
    for (const int rows : {9000, 200001}) {
        const std::array<int, 3> spiked{1, rows / 3 + 5, rows - 3};
        Column values(size_t(rows), 0.0);
        for (const int row : spiked)
            values[size_t(row)] = 1;
        Scene scene(values, width);
        for (const double extent : {60.0, 600.0, 4380.0, 300000.0}) {
            scene.m_Time->SetEnd({extent, 0});
            for (const int row : spiked) {
                const double x = scene.m_Time->ToX(row);
                const double left = std::max(std::floor(x) - width / 2, 0.0);
                const QImage image = render(scene.m_Line, left);
                const QRect around(int(x - left) - 1, 8, 3, 20);
                QVERIFY(darkestIn(image, around & image.rect()) < 200);
            }
        }
    }
}

void TestLineReduction::joinsAcrossTiles_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<Maker>("axis");
    QTest::addColumn<double>("scale");
    const Maker linear = &make<TimeAxis>;
    QTest::newRow("few rows") << 7 << linear << 1.0;
    QTest::newRow("a row per pixel") << 600 << linear << 1.5;
    QTest::newRow("many rows") << 60000 << linear << 1.5;
    QTest::newRow("many rows, sharp screen") << 60000 << linear << 2.0;
    QTest::newRow("slitted") << 60000 << Maker(&make<SlittedAxis>) << 1.0;
    QTest::newRow("lens") << 60000 << Maker(&make<LensAxis>) << 1.0;
    QTest::newRow("falling") << 60000 << Maker(&make<FallingAxis>) << 1.0;
}

void TestLineReduction::joinsAcrossTiles()
{
    constexpr int tileWidth = 200;
    QFETCH(int, rows);
    QFETCH(Maker, axis);
    QFETCH(double, scale);
    Scene scene(makeSignal(rows, 0.5, sine), 3 * tileWidth, axis());
    const QImage wide = render(scene.m_Line, 0, scale, 3 * tileWidth);
    for (int tile = 0; tile < 3; ++tile) {
        const QImage part = render(scene.m_Line, tile * tileWidth, scale, tileWidth);
        const QImage same = wide.copy(tile * part.width(), 0, part.width(), part.height());
        // A last bit of rounding may differ where the line is clipped.
        QVERIFY2(difference(part, same) < 0.1, qPrintable(QString::number(tile)));
        for (const int x : {0, part.width() - 1}) {
            for (int y = 0; y < part.height(); ++y)
                QVERIFY(std::abs(qGray(part.pixel(x, y)) - qGray(same.pixel(x, y))) <= 8);
        }
    }
}

void TestLineReduction::leavesGapsForMissingValues_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<RowSpan>("hole");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("island");
    constexpr double infinite = std::numeric_limits<double>::infinity();
    // From a row per pixel over columns of rows to columns that are summarised.
    for (const int rows : {60, 600, 6000, 60000, 600000}) {
        QTest::addRow("a third of %d rows", rows)
            << rows << RowSpan{rows / 3, rows * 2 / 3} << missing << -1;
        QTest::addRow("one of %d rows", rows)
            << rows << RowSpan{rows / 2, rows / 2 + 1} << infinite << -1;
    }
    // 32 rows to a column.
    QTest::newRow("whole columns") << 153601 << RowSpan{51200, 102400} << missing << -1;
    QTest::newRow("ten rows of a column") << 153601 << RowSpan{51205, 51215} << missing << 51210;
}

void TestLineReduction::leavesGapsForMissingValues()
{
    QFETCH(int, rows);
    QFETCH(RowSpan, hole);
    QFETCH(double, value);
    QFETCH(int, island);
    // Low before the hole, high behind it: any stroke across it would cross the middle.
    Column values(size_t(rows), 0.5);
    std::fill(values.begin() + hole.m_From, values.end(), 1.5);
    std::fill(values.begin() + hole.m_From, values.begin() + hole.m_To, value);
    if (island >= 0)
        values[size_t(island)] = 0.5;
    Scene scene(values, width);
    scene.m_Vertical.SetMinimum(0);
    scene.m_Vertical.SetMaximum(2);
    const QImage image = render(scene.m_Line);
    QCOMPARE(darkestIn(image, {0, 70, width, 60}), 255);
    const auto pixelOf = [&](int row) { return int(scene.m_Time->ToX(row)); };
    QVERIFY(darkestIn(image, {pixelOf(hole.m_From) - 12, 130, 10, 30}) < 200);
    QVERIFY(darkestIn(image, {pixelOf(hole.m_To) + 12, 40, 10, 30}) < 200);
    if (hole.GetLength() > rows / 60)
        QCOMPARE(darkestIn(image, {pixelOf(hole.m_From) + 2, 0, 190, height}), 255);
}

QTEST_MAIN(TestLineReduction)
#include "tst_linereduction.moc"
