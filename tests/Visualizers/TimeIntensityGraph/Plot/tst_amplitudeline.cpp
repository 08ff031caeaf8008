#include "collectionamplitudeline.h"
#include "cutcollection.h"
#include "cuttableamplitudeline.h"
#include "heatcolor.h"
#include "testdata.h"
#include "timeaxis.h"
#include "verticalaxis.h"
#include <QImage>
#include <QPainter>
#include <QtTest>
#include <cmath>
#include <limits>

namespace
{
constexpr int width = 600;
constexpr int height = 200;
// A narrower picture, where pictures are painted four times as large.
constexpr int strip = 300;
constexpr double missing = std::numeric_limits<double>::quiet_NaN();

using Column = std::vector<double>;

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
    return std::sin(place * 20);
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

Column noisySine(int rows)
{
    return makeSignal(rows, 0.5, sine);
}

/// A line over a recording, the axes as wide as `extent` pixels.
struct Scene {
    Scene(const Column& values, double extent) : m_Data(MakeColumn(values))
    {
        m_Vertical.SetTop({0, 9});
        m_Vertical.SetBottom({0, height - 9});
        m_Vertical.SetMinimum(m_Data->GetMinValue(0));
        m_Vertical.SetMaximum(m_Data->GetMaxValue(0));
        m_Time.SetEnd({extent, 0});
        m_Time.SetNumberOfPoints(m_Data->GetRowCount());
    }

    void Connect(AmplitudeLine& line)
    {
        line.SetDataSet(m_Data.get());
        line.SetTimeAxis(&m_Time);
        line.SetVerticalAxis(&m_Vertical);
    }

    /// The polyline through all rows but the last, as a plain painter draws it.
    void PaintPlain(QPainter& painter) const
    {
        QPolygonF polygon;
        for (int row = 0; row < m_Data->GetRowCount() - 1; ++row)
            polygon.append({m_Time.ToExactPixel(row),
                            m_Vertical.GetBottom().y() - double(m_Vertical.ToPixel(float(
                                                             m_Data->GetRow(row)->GetValue(0))))});
        painter.setPen(QPen(Qt::black, 0.5));
        painter.drawPolyline(polygon);
    }

    std::unique_ptr<DataSet> m_Data;
    TimeAxis m_Time;
    VerticalAxis m_Vertical;
};

template <typename Painting>
QImage render(double left, double scale, const Painting& paint, int imageWidth = width)
{
    QImage image(QSize(imageWidth, height) * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-left, 0);
    paint(painter);
    return image;
}

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

int darkestIn(const QImage& image, const QRect& area)
{
    int darkest = 255;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            darkest = std::min(darkest, qGray(image.pixel(x, y)));
    }
    return darkest;
}
} // namespace

Q_DECLARE_METATYPE(Column)

class TestAmplitudeLine : public QObject
{
    Q_OBJECT
private slots:
    void looksAsIfEveryRowWereDrawn_data();
    void looksAsIfEveryRowWereDrawn();
    void staysQuickOnSharpScreens();
    void neverLosesASingleRow_data();
    void neverLosesASingleRow();
    void joinsAcrossTiles_data();
    void joinsAcrossTiles();
    void leavesGapsForMissingValues_data();
    void leavesGapsForMissingValues();
    void cuttableLineLeavesOutTheLastRow();
    void rangeIsStretchedUnlessCuttable();
    void paintsArrays();
    void survivesOddInput_data();
    void survivesOddInput();
    void secondPainters();
    void heatColors_data();
    void heatColors();
};

void TestAmplitudeLine::looksAsIfEveryRowWereDrawn_data()
{
    QTest::addColumn<Column>("values");
    QTest::addColumn<double>("extent");
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("limit");
    // Where rows follow each other smoothly, the full line itself breaks into dots, its strokes
    // being shorter than painters can place: there only the ideal picture counts.
    constexpr double close = 4;
    constexpr double any = 255;
    const std::vector<std::tuple<const char*, double, double (*)(double)>> shapes{
        {"noisy sine", 0.5, sine}, {"sine", 0.0, sine},           {"noisy steps", 0.1, steps},
        {"steps", 0.0, steps},     {"noisy spikes", 0.1, spikes}, {"spikes", 0.0, spikes}};
    for (const auto& [name, noise, shape] : shapes) {
        for (const int rows : {1000, 25000}) {
            const Column values = makeSignal(rows, noise, shape);
            const double limit = noise == 0 && shape == sine ? any : close;
            for (const double zoom : {1.0, 3.0, 12.0})
                QTest::addRow("%s, %d rows, zoom %g", name, rows, zoom)
                    << values << zoom * strip << 1.0 << limit;
            QTest::addRow("%s, %d rows, sharp screen", name, rows)
                << values << 1.0 * strip << 2.0 << limit;
        }
    }
}

void TestAmplitudeLine::looksAsIfEveryRowWereDrawn()
{
    QFETCH(Column, values);
    QFETCH(double, extent);
    QFETCH(double, scale);
    QFETCH(double, limit);
    Scene scene(values, extent);
    CuttableAmplitudeLine line(0, nullptr);
    scene.Connect(line);
    const double left = (extent - strip) / 2;
    const auto plain = [&](QPainter& painter) { scene.PaintPlain(painter); };
    const QImage fast = render(
        left, scale, [&](QPainter& painter) { line.Paint(painter); }, strip);
    const QImage full = render(left, scale, plain, strip);
    const double toFull = difference(fast, full);
    QVERIFY2(toFull <= limit, qPrintable(QString::number(toFull)));
    if (toFull == 0)
        return;
    const QImage large = render(left, scale * 4, plain, strip);
    const QImage ideal = scaledDown(large, full.size());
    const double fastToIdeal = difference(fast, ideal);
    const double fullToIdeal = difference(full, ideal);
    QVERIFY2(fastToIdeal <= fullToIdeal + 0.05,
             qPrintable(QStringLiteral("%1 against %2").arg(fastToIdeal).arg(fullToIdeal)));
}

void TestAmplitudeLine::staysQuickOnSharpScreens()
{
    // Pens wider than a device pixel take another, far slower way through the painter.
    Scene scene({0, 1, 0}, width);
    CuttableAmplitudeLine line(0, nullptr);
    scene.Connect(line);
    for (const double scale : {1.0, 2.0, 3.3}) {
        double penWidth = 0;
        render(0, scale, [&](QPainter& painter) {
            line.Paint(painter);
            penWidth = painter.pen().widthF();
        });
        QVERIFY(penWidth > 0.25 && penWidth <= 0.5 && penWidth * scale <= 1);
    }
}

void TestAmplitudeLine::neverLosesASingleRow_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<double>("extent");
    for (const int rows : {500, 9000, 200001, 1000003}) {
        for (const double zoom : {1.0, 7.3, 500.0})
            QTest::addRow("%d rows, zoom %g", rows, zoom) << rows << zoom * width;
    }
}

void TestAmplitudeLine::neverLosesASingleRow()
{
    QFETCH(int, rows);
    QFETCH(double, extent);
    for (const int spike : {1, rows / 3 + 5, rows - 3}) {
        Column values(size_t(rows), 0.0);
        values[size_t(spike)] = 1;
        Scene scene(values, extent);
        CuttableAmplitudeLine line(0, nullptr);
        scene.Connect(line);
        const double x = scene.m_Time.ToExactPixel(spike);
        const double left = qBound(0.0, std::floor(x) - width / 2, extent - width);
        const QImage image = render(left, 1, [&](QPainter& painter) { line.Paint(painter); });
        const int column = int(x - left);
        const QRect around(std::max(column - 1, 0), 8, 3, 20);
        QVERIFY2(darkestIn(image, around & image.rect()) < 200, qPrintable(QString::number(spike)));
    }
}

void TestAmplitudeLine::joinsAcrossTiles_data()
{
    QTest::addColumn<Column>("values");
    QTest::addColumn<double>("scale");
    for (const double scale : {1.0, 1.5, 2.0}) {
        QTest::addRow("few rows, %g", scale) << noisySine(7) << scale;
        QTest::addRow("a row per pixel, %g", scale) << noisySine(3 * width) << scale;
        QTest::addRow("many rows, %g", scale) << noisySine(300000) << scale;
    }
}

void TestAmplitudeLine::joinsAcrossTiles()
{
    QFETCH(Column, values);
    QFETCH(double, scale);
    Scene scene(values, 3 * width);
    CuttableAmplitudeLine line(0, nullptr);
    scene.Connect(line);
    const auto paint = [&](QPainter& painter) { line.Paint(painter); };
    const QImage wide = render(0, scale, paint, 3 * width);
    for (int tile = 0; tile < 3; ++tile) {
        const QImage part = render(tile * width, scale, paint);
        const QImage same = wide.copy(tile * part.width(), 0, part.width(), part.height());
        // A last bit of rounding may differ where the line is clipped.
        QVERIFY2(difference(part, same) < 0.1, qPrintable(QString::number(tile)));
        for (const int x : {0, part.width() - 1}) {
            for (int y = 0; y < part.height(); ++y)
                QVERIFY(std::abs(qGray(part.pixel(x, y)) - qGray(same.pixel(x, y))) <= 8);
        }
    }
}

void TestAmplitudeLine::leavesGapsForMissingValues_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<double>("hole");
    for (const int rows : {60, 6000, 600000}) {
        QTest::addRow("NaN, %d rows", rows) << rows << missing;
        QTest::addRow("infinite, %d rows", rows) << rows << std::numeric_limits<double>::infinity();
    }
}

void TestAmplitudeLine::leavesGapsForMissingValues()
{
    QFETCH(int, rows);
    QFETCH(double, hole);
    Column values(size_t(rows), 1.0);
    values[0] = 0;
    std::fill(values.begin() + rows / 3, values.begin() + rows * 2 / 3, hole);
    Scene scene(values, width);
    scene.m_Vertical.SetMaximum(2);
    CuttableAmplitudeLine line(0, nullptr);
    scene.Connect(line);
    const QImage image = render(0, 1, [&](QPainter& painter) { line.Paint(painter); });
    QCOMPARE(darkestIn(image, {width / 3 + 5, 0, width / 3 - 10, height}), 255);
    QVERIFY(darkestIn(image, {width / 6, 0, 20, height}) < 200);
    QVERIFY(darkestIn(image, {width * 5 / 6, 0, 20, height}) < 200);
}

void TestAmplitudeLine::cuttableLineLeavesOutTheLastRow()
{
    Scene scene({0, 0, 0, 1}, width);
    CuttableAmplitudeLine cuttable(0, nullptr);
    AmplitudeLine all(0);
    scene.Connect(cuttable);
    scene.Connect(all);
    const QRect lastThird(width * 2 / 3 + 2, 0, width / 3 - 2, height);
    const auto inkOf = [&](AmplitudeLine& line) {
        return darkestIn(render(0, 1, [&](QPainter& painter) { line.Paint(painter); }), lastThird);
    };
    QCOMPARE(inkOf(cuttable), 255);
    QVERIFY(inkOf(all) < 230);
}

void TestAmplitudeLine::rangeIsStretchedUnlessCuttable()
{
    // Rows 2 to 3 only: at the axis start for the plain line, in place for the cuttable one.
    Scene scene({0, 0, 0, 0, 0, 0, 0}, 600);
    scene.m_Vertical.SetMaximum(1);
    CuttableAmplitudeLine cuttable(0, nullptr);
    AmplitudeLine plain(0);
    scene.Connect(plain);
    plain.SetRange(2, 4);
    QImage image = render(0, 1, [&](QPainter& painter) { plain.Paint(painter); });
    QVERIFY(darkestIn(image, {10, 0, 80, height}) < 230);
    QCOMPARE(darkestIn(image, {110, 0, 400, height}), 255);
    scene.Connect(cuttable);
    cuttable.SetRange(2, 3);
    image = render(0, 1, [&](QPainter& painter) { cuttable.Paint(painter); });
    QCOMPARE(darkestIn(image, {0, 0, 190, height}), 255);
    QVERIFY(darkestIn(image, {210, 0, 80, height}) < 200);
    QCOMPARE(darkestIn(image, {310, 0, 200, height}), 255);
    int from = 0;
    int to = 0;
    cuttable.SetRange(-5, 99);
    cuttable.GetRange(from, to);
    QCOMPARE(std::make_pair(from, to), std::make_pair(0, 7));
}

void TestAmplitudeLine::paintsArrays()
{
    Scene scene({0, 0, 0, 0}, 300);
    scene.m_Vertical.SetMaximum(1);
    double values[] = {0, 0, missing, 0};
    AmplitudeLine line;
    line.SetData(values, 4);
    line.SetTimeAxis(&scene.m_Time);
    line.SetVerticalAxis(&scene.m_Vertical);
    const QImage image = render(0, 1, [&](QPainter& painter) { line.Paint(painter); });
    QVERIFY(darkestIn(image, {10, 0, 80, height}) < 230);
    QCOMPARE(darkestIn(image, {110, 0, 300, height}), 255);
}

void TestAmplitudeLine::survivesOddInput_data()
{
    QTest::addColumn<Column>("values");
    QTest::addColumn<double>("extent");
    QTest::newRow("no rows") << Column{} << 600.0;
    QTest::newRow("one row") << Column{3} << 600.0;
    QTest::newRow("two rows") << Column{3, 4} << 600.0;
    QTest::newRow("flat") << Column(500, 3.0) << 600.0;
    QTest::newRow("no width") << noisySine(500) << 0.0;
    QTest::newRow("negative width") << noisySine(500) << -35.0;
    QTest::newRow("500 screens") << noisySine(500) << 600000.0;
    QTest::newRow("nothing finite") << Column(500, missing) << 600.0;
    QTest::newRow("huge values") << Column{1e300, -1e300, 1e300, 0} << 600.0;
    QTest::newRow("infinite values") << Column{1, 1 / 0.0, 2, -1 / 0.0, 3} << 600.0;
}

void TestAmplitudeLine::survivesOddInput()
{
    QFETCH(Column, values);
    QFETCH(double, extent);
    Scene scene(values, extent);
    CuttableAmplitudeLine cuttable(0, nullptr);
    AmplitudeLine plain(0);
    for (AmplitudeLine* line : std::initializer_list<AmplitudeLine*>{&cuttable, &plain}) {
        scene.Connect(*line);
        for (const int attribute : {0, -1, 5}) {
            line->SetAttribute(attribute);
            const QImage image = render(0, 1, [&](QPainter& painter) { line->Paint(painter); });
            // Nothing may be painted for an attribute that does not exist.
            QVERIFY(attribute == 0 || darkestIn(image, image.rect()) == 255);
        }
    }
}

void TestAmplitudeLine::secondPainters()
{
    Scene scene(Column(400, 1.0), 400);
    scene.m_Vertical.SetMaximum(2);
    scene.m_Vertical.SetMinimum(0);
    CutCollection cuts;
    cuts.InsertCut(0, 400, CutSegment::SEGMENT_CUT);
    CutSegment* labelled = cuts.InsertCut(100, 300, CutSegment::SEGMENT_LABELED);
    labelled->SetColor(Qt::green);

    // 100 rows, a block of 20, 100 rows.
    CuttableAmplitudeLine line(0, &cuts);
    scene.Connect(line);
    const QImage collapsed = render(0, 1, [&](QPainter& painter) { line.PaintCollapsed(painter); });
    QCOMPARE(scene.m_Time.GetLastIndex(), 219);
    const auto pixelOf = [&](int point) { return int(scene.m_Time.ToPixel(point)); };
    QCOMPARE(collapsed.pixelColor(pixelOf(110), height / 2), QColor(Qt::green));
    QCOMPARE(collapsed.pixelColor(pixelOf(110), height - 12), QColor(Qt::green));
    QCOMPARE(collapsed.pixelColor(pixelOf(50), height - 12), QColor(Qt::white));
    QVERIFY(collapsed.pixelColor(pixelOf(50), height / 2) != QColor(Qt::white));
    QVERIFY(collapsed.pixelColor(pixelOf(170), height / 2) != QColor(Qt::white));

    // A gap of 20, 200 rows of the state, a gap of 20.
    CollectionAmplitudeLine collection(0, CutSegment::SEGMENT_LABELED);
    collection.SetDataSet(scene.m_Data.get());
    collection.SetWidth(480);
    collection.SetHeight(100);
    const auto paintCollection = [&](QPainter& painter) { collection.Paint(painter); };
    QCOMPARE(darkestIn(render(0, 1, paintCollection), {0, 0, width, height}), 255);
    collection.SetCutCollection(&cuts);
    QCOMPARE(collection.GetTimeAxis()->GetLastIndex(), 239);
    const QImage rows = render(0, 1, paintCollection);
    const int scale = 2;
    QCOMPARE(darkestIn(rows, {0, 0, 19 * scale, height}), 255);
    QVERIFY(darkestIn(rows, {25 * scale, 0, 190 * scale, height}) < 255);
    QCOMPARE(darkestIn(rows, {223 * scale, 0, 100, height}), 255);
}

void TestAmplitudeLine::heatColors_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QVector<double>>("rgb");
    // t = |value| / 4 for values from -4 to 4; the ramp's corner points.
    QTest::newRow("lowest") << 0.0 << QVector<double>{0, 0, 1};
    QTest::newRow("quarter") << 1.0 << QVector<double>{0, 1, 1};
    QTest::newRow("middle") << -2.0 << QVector<double>{0, 1, 0};
    QTest::newRow("three quarters") << 3.0 << QVector<double>{1, 1, 0};
    QTest::newRow("highest") << 4.0 << QVector<double>{1, 0, 0};
    QTest::newRow("missing") << missing << QVector<double>{0, 0, 1};
}

void TestAmplitudeLine::heatColors()
{
    QFETCH(double, value);
    QFETCH(QVector<double>, rgb);
    const auto data = MakeColumn({-4, 4, value});
    const HeatRgb color = HeatColor(*data, 2, 0);
    QCOMPARE((QVector<double>{double(color.m_Red), double(color.m_Green), double(color.m_Blue)}),
             rgb);
}

QTEST_MAIN(TestAmplitudeLine)
#include "tst_amplitudeline.moc"
