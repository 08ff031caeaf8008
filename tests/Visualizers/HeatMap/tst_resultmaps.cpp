#include "booleanmapviz.h"
#include "colormaps.h"
#include "heatmapviz.h"
#include "linearcolormapwidget.h"
#include "lineplotwidget.h"
#include "mousedrag.h"
#include "testdata.h"
#include "thresholdlinegraphwidget.h"
#include "thresholdmap.h"
#include "thresholdmapdistribution.h"
#include "twodimensionalheatmapviz.h"
#include <QDialog>
#include <QtTest>

namespace
{

constexpr int steps = 100;
constexpr int mapWidth = 440; // four pixels a step

/// Two frequency factors, with a match of the first on step 20 and of both on step 60.
struct Results {
    std::vector<float> m_First = std::vector<float>(steps, 0.0F);
    std::vector<float> m_Second = std::vector<float>(steps, 0.0F);
    float* m_Rows[2] = {m_First.data(), m_Second.data()};
    std::shared_ptr<const CenterPoints> m_Matches =
        std::make_shared<const CenterPoints>(CenterPoints{{20, 60}, {60}});

    Results()
    {
        m_First[20] = 0.9F;
        m_First[60] = 0.5F;
        m_Second[60] = 0.7F;
    }
    void ShowOn(ResultMapWidget& map)
    {
        map.SetResults(m_Rows, 2, steps);
        map.SetMatches(m_Matches);
        map.SetThreshold(0.6F);
        map.resize(mapWidth, 40);
        map.show();
    }
};

template <class Map>
std::unique_ptr<ResultMapWidget> make()
{
    return std::make_unique<Map>();
}
using Maker = std::unique_ptr<ResultMapWidget> (*)();

QColor schemeColor(float value, int scheme)
{
    float r = 0;
    float g = 0;
    float b = 0;
    ColorMaps::GetColor(value, &r, &g, &b, scheme);
    return QColor::fromRgbF(double(r), double(g), double(b)).rgb();
}

// The pixels, apart from the gutter, in which two pictures differ.
QSet<int> differentColumns(const QImage& a, const QImage& b)
{
    QSet<int> columns;
    for (int x = 0; x < a.width(); ++x) {
        for (int y = 0; y < a.height(); ++y) {
            if (a.pixel(x, y) != b.pixel(x, y))
                columns.insert(x);
        }
    }
    return columns;
}

} // namespace

Q_DECLARE_METATYPE(Maker)

class TestResultMaps : public QObject
{
    Q_OBJECT
private slots:
    void rejectsMatchesOnABand_data();
    void rejectsMatchesOnABand();
    void marksMatchesUntilTheyAreRejected_data();
    void marksMatchesUntilTheyAreRejected();
    void zoomsIn();
    void opensAPlotOfASpan();
    void colorsConfidences();
};

void TestResultMaps::rejectsMatchesOnABand_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<double>("origin");
    QTest::addColumn<double>("pixelsPerStep");
    const double all = (mapWidth - 39.0) / steps;
    QTest::newRow("threshold map") << Maker(&make<ThresholdMap>) << 40.0 << all;
    QTest::newRow("distribution") << Maker(&make<ThresholdMapDistribution>) << 40.0 << all;
    QTest::newRow("heat map") << Maker(&make<TwoDimensionalHeatMapViz>) << 40.0 << all;
    QTest::newRow("rows") << Maker(&make<HeatMapViz>) << 40.0 << all;
    QTest::newRow("flags") << Maker(&make<BooleanMapViz>) << 40.0 << all;
    QTest::newRow("line") << Maker(&make<ThresholdLineGraphWidget>) << 0.0
                          << (mapWidth - 49.0) / steps;
}

void TestResultMaps::rejectsMatchesOnABand()
{
    QFETCH(Maker, maker);
    QFETCH(double, origin);
    QFETCH(double, pixelsPerStep);
    Results results;
    const auto map = maker();
    results.ShowOn(*map);
    QSignalSpy removed(map.get(), &ResultMapWidget::ItemsRemoved);
    const auto drag = [&](double from, double to) {
        const auto toPixel = [&](double step) { return qRound(origin + step * pixelsPerStep); };
        DragMouse(*map, {toPixel(from), 5}, {toPixel(to), 9});
    };
    // A click, and a band that ends just before the match.
    drag(20, 20);
    drag(10, 19.5);
    drag(20.5, 30);
    QCOMPARE(removed.size(), 0);
    // From right to left, and beyond the edge.
    drag(61, 59);
    QCOMPARE(map->GetRemovedSteps(), QList<int>{60});
    drag(50, 70);
    QCOMPARE(removed.size(), 1);
    map->ItemsRemovedFromPlot({90, 20});
    drag(-30, 200);
    QCOMPARE(removed.size(), 1);
    QCOMPARE(map->GetRemovedSteps(), (QList<int>{20, 60, 90}));
    results.ShowOn(*map);
    drag(-30, 200);
    QCOMPARE(removed.size(), 2);
    QCOMPARE(map->GetRemovedSteps(), (QList<int>{20, 60}));
}

void TestResultMaps::marksMatchesUntilTheyAreRejected_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<int>("width");
    QTest::newRow("threshold map") << Maker(&make<ThresholdMap>) << 1;
    QTest::newRow("flags") << Maker(&make<BooleanMapViz>) << 4;
    QTest::newRow("distribution") << Maker(&make<ThresholdMapDistribution>) << 7;
}

void TestResultMaps::marksMatchesUntilTheyAreRejected()
{
    QFETCH(Maker, maker);
    QFETCH(int, width);
    Results results;
    const auto map = maker();
    results.ShowOn(*map);
    const QImage before = map->grab().toImage();
    map->ItemsRemovedFromPlot({20});
    const QSet<int> changed = differentColumns(before, map->grab().toImage());
    QCOMPARE(changed.size(), width);
    QVERIFY(changed.contains(120));
}

void TestResultMaps::zoomsIn()
{
    Results results;
    ThresholdLineGraphWidget map;
    results.ShowOn(map);
    map.SetZoomRange(50, 70);
    // Step 60 stands in the middle of what is left of the margin.
    const int x = (mapWidth - 49) / 2;
    DragMouse(map, {x - 5, 5}, {x + 5, 9});
    QCOMPARE(map.GetRemovedSteps(), QList<int>{60});
}

void TestResultMaps::opensAPlotOfASpan()
{
    Results results;
    const auto data = MakeColumn(std::vector<double>(steps, 1.0));
    ThresholdMap map;
    results.ShowOn(map);
    DragMouse(map, {100, 10}, {200, 10}, Qt::RightButton);
    QVERIFY(!map.findChild<QDialog*>());
    map.SetDataSet(data.get());
    DragMouse(map, {200, 10}, {100, 10}, Qt::RightButton);
    const auto* dialog = map.findChild<QDialog*>();
    QVERIFY(dialog);
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Line Plot"));
    QCOMPARE(dialog->size(), QSize(600, 300));
    const double stepWidth = (mapWidth - 39.0) / steps;
    QCOMPARE(dialog->findChild<LinePlotWidget*>()->GetRange(),
             RowSpan({int(60 / stepWidth), int(160 / stepWidth) + 1}));
    QCOMPARE(map.GetRemovedSteps(), QList<int>());
    // The other button does not take a band over.
    QTest::mousePress(&map, Qt::LeftButton, {}, {100, 10});
    MoveMouse(map, {200, 10}, Qt::LeftButton);
    QTest::mousePress(&map, Qt::RightButton, {}, {150, 10});
    QTest::mouseRelease(&map, Qt::RightButton, {}, {150, 10});
    QTest::mouseRelease(&map, Qt::LeftButton, {}, {200, 10});
    QCOMPARE(map.findChildren<QDialog*>().size(), 1);
    QCOMPARE(map.GetRemovedSteps(), QList<int>{20});
}

void TestResultMaps::colorsConfidences()
{
    Results results;
    TwoDimensionalHeatMapViz highest;
    results.ShowOn(highest);
    // The better of both factors.
    QCOMPARE(highest.grab().toImage().pixelColor(281, 20), schemeColor(0.7F, 3));
    QCOMPARE(highest.grab().toImage().pixelColor(200, 20), QColor(Qt::white));
    highest.SetColorMap(0);
    QCOMPARE(highest.grab().toImage().pixelColor(281, 20), schemeColor(0.7F, 0));

    HeatMapViz both;
    results.ShowOn(both);
    QCOMPARE(both.grab().toImage().pixelColor(281, 10), schemeColor(0.5F, 3));
    QCOMPARE(both.grab().toImage().pixelColor(281, 30), schemeColor(0.7F, 3));

    ThresholdMap above;
    results.ShowOn(above);
    QCOMPARE(above.grab().toImage().pixelColor(282, 35), schemeColor(0.7F, 3));
    above.SetThreshold(0.8F);
    QCOMPARE(above.grab().toImage().pixelColor(282, 35), QColor(Qt::white));
    QCOMPARE(above.grab().toImage().pixelColor(122, 35), schemeColor(0.9F, 3));

    LinearColorMapWidget legend;
    legend.resize(200, 30);
    const QImage picture = legend.grab().toImage();
    QVERIFY(picture.pixelColor(1, 15).blue() < 10);
    QVERIFY(picture.pixelColor(197, 15).blue() > 245);
}

QTEST_MAIN(TestResultMaps)
#include "tst_resultmaps.moc"
