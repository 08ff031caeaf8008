#include "collectionamplitudeline.h"
#include "colormaps.h"
#include "cutcollection.h"
#include "heatcolor.h"
#include "linescene.h"
#include "slittedaxis.h"
#include <QtTest>
#include <array>
#include <cmath>

Q_DECLARE_METATYPE(Column)

class TestAmplitudeLine : public QObject
{
    Q_OBJECT
private slots:
    void staysQuickOnSharpScreens();
    void rangeIsStretchedUnlessCuttable();
    void paintsArrays();
    void survivesOddInput_data();
    void survivesOddInput();
    void secondPainters();
    void heatColors();
    void colorMaps();
};

void TestAmplitudeLine::staysQuickOnSharpScreens()
{
    // Pens wider than a device pixel take another, far slower way through the painter.
    Scene scene({0, 1, 0}, width);
    for (const double scale : {1.0, 2.0, 3.3}) {
        double penWidth = 0;
        render(0, scale, [&](QPainter& painter) {
            scene.m_Line.Paint(painter);
            penWidth = painter.pen().widthF();
        });
        QVERIFY(penWidth > 0.25 && penWidth <= 0.5 && penWidth * scale <= 1);
    }
}

void TestAmplitudeLine::rangeIsStretchedUnlessCuttable()
{
    // Rows 2 to 3 only: at the axis start for the plain line, in place for the cuttable one.
    Scene scene({0, 0, 0, 0, 0, 0, 0}, 600);
    scene.m_Vertical.SetMaximum(1);
    AmplitudeLine plain(0);
    scene.Connect(plain);
    plain.SetRange(2, 4);
    QImage image = render(plain);
    QVERIFY(darkestIn(image, {10, 0, 80, height}) < 230);
    QCOMPARE(darkestIn(image, {110, 0, 400, height}), 255);
    scene.m_Line.SetRange(2, 3);
    image = render(scene.m_Line);
    QCOMPARE(darkestIn(image, {0, 0, 190, height}), 255);
    QVERIFY(darkestIn(image, {210, 0, 80, height}) < 200);
    QCOMPARE(darkestIn(image, {310, 0, 200, height}), 255);
    scene.m_Line.SetRange(-5, 99);
    QCOMPARE(scene.m_Line.GetRange(), RowSpan({0, 7}));
    // The last row of the recording is left out.
    image = render(scene.m_Line);
    QVERIFY(darkestIn(image, {410, 0, 80, height}) < 200);
    QCOMPARE(darkestIn(image, {510, 0, 90, height}), 255);
}

void TestAmplitudeLine::paintsArrays()
{
    Scene scene({0, 0, 0, 0}, 300);
    scene.m_Vertical.SetMaximum(1);
    double values[] = {0, 0, missing, 0};
    AmplitudeLine line;
    line.SetData(values, 4);
    line.SetTimeAxis(scene.m_Time.get());
    line.SetVerticalAxis(&scene.m_Vertical);
    const QImage image = render(line);
    QVERIFY(darkestIn(image, {10, 0, 80, height}) < 230);
    QCOMPARE(darkestIn(image, {110, 0, 300, height}), 255);
}

void TestAmplitudeLine::survivesOddInput_data()
{
    QTest::addColumn<Column>("values");
    QTest::addColumn<double>("extent");
    Column noisy;
    for (int i = 0; i < 500; ++i)
        noisy.push_back(i * 7919 % 101);
    QTest::newRow("no rows") << Column{} << 600.0;
    QTest::newRow("one row") << Column{3} << 600.0;
    QTest::newRow("two rows") << Column{3, 4} << 600.0;
    QTest::newRow("flat") << Column(500, 3.0) << 600.0;
    QTest::newRow("no width") << noisy << 0.0;
    QTest::newRow("negative width") << noisy << -35.0;
    QTest::newRow("500 screens") << noisy << 600000.0;
    QTest::newRow("nothing finite") << Column(500, missing) << 600.0;
    QTest::newRow("huge values") << Column{1e300, -1e300, 1e300, 0} << 600.0;
    QTest::newRow("infinite values") << Column{1, 1 / 0.0, 2, -1 / 0.0, 3} << 600.0;
}

void TestAmplitudeLine::survivesOddInput()
{
    QFETCH(Column, values);
    QFETCH(double, extent);
    AmplitudeLine plain(0);
    for (const Maker axis : {Maker(&make<TimeAxis>), Maker(&make<SlittedAxis>)}) {
        Scene scene(values, extent, axis());
        scene.Connect(plain);
        for (AmplitudeLine* line : std::initializer_list<AmplitudeLine*>{&scene.m_Line, &plain}) {
            for (const int attribute : {0, -1, 5}) {
                line->SetAttribute(attribute);
                const QImage image = render(*line);
                // Nothing may be painted for an attribute that does not exist.
                QVERIFY(attribute == 0 || darkestIn(image, image.rect()) == 255);
            }
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
    scene.m_Line.SetCutCollection(&cuts);
    const QImage collapsed =
        render(0, 1, [&](QPainter& painter) { scene.m_Line.PaintCollapsed(painter); });
    QCOMPARE(scene.m_Time->GetLastIndex(), 219);
    const auto pixelOf = [&](int point) { return int(scene.m_Time->ToPixel(point)); };
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

void TestAmplitudeLine::heatColors()
{
    // t = |value| / 4 for values from -4 to 4: the ramp's corner points. A missing value comes
    // last.
    const std::vector<std::pair<double, QVector<double>>> colors{
        {0, {0, 0, 1}}, {1, {0, 1, 1}}, {-2, {0, 1, 0}},
        {3, {1, 1, 0}}, {4, {1, 0, 0}}, {missing, {0, 0, 1}}};
    for (const auto& [value, rgb] : colors) {
        const HeatRgb color = HeatColor(*MakeColumn({-4, 4, value}), 2, 0);
        QCOMPARE(
            (QVector<double>{double(color.m_Red), double(color.m_Green), double(color.m_Blue)}),
            rgb);
    }
}

void TestAmplitudeLine::colorMaps()
{
    // Scheme 0 worked by hand from its ramps; the others are their stops, blended. Values beyond
    // both ends, and an unknown scheme, which is left alone.
    const float none = std::nanf("");
    const std::vector<std::tuple<int, float, std::array<float, 3>>> colors{
        {0, 0.0F, {0, 0, 1}},          {0, 0.25F, {0, 1, 1}}, {0, 7.0F, {1, 0, 0}},
        {1, 0.5F, {0, 1, 0}},          {1, 1.0F, {1, 0, 0}},  {2, 1.0F, {1, 1, 0}},
        {3, 0.5F, {0.5F, 0.5F, 0.5F}}, {3, 1.0F, {0, 0, 1}},  {3, none, {1, 1, 0}},
        {4, 0.5F, {-1, -1, -1}}};
    for (const auto& [scheme, value, expected] : colors) {
        std::array<float, 3> color{-1, -1, -1};
        ColorMaps::GetColor(value, &color[0], &color[1], &color[2], scheme);
        // A hundred columns over a slightly sloping gradient: up to one and a half columns off.
        for (size_t i = 0; i < 3; ++i)
            QVERIFY(std::abs(color[i] - expected[i]) < 0.04F);
    }
}

QTEST_MAIN(TestAmplitudeLine)
#include "tst_amplitudeline.moc"
