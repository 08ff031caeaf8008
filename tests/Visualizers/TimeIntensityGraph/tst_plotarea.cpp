#include "cutcollection.h"
#include "cuttablelineplotwidget.h"
#include "lineplotlabel.h"
#include "mousedrag.h"
#include "multiselectionplotareawidget.h"
#include "pixmapcache.h"
#include "plotarealabelwidget.h"
#include "plotzoomwidget.h"
#include "selectionplotareawidget.h"
#include "testdata.h"
#include "timeaxis.h"
#include <QMenu>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QtTest>

namespace
{
/// Rows of three attributes that swing.
std::unique_ptr<DataSet> makeRecording(int rows)
{
    auto data = MakeDataSet("0 1 2\n");
    for (int i = 1; i < rows; ++i) {
        auto* row = new DataRow;
        for (int j = 0; j < 3; ++j)
            row->AddValue((i * 7 + j) % 11);
        row->SetLabel(QString::number(i + 1));
        data->AddRow(row);
    }
    data->ComputeRanges();
    return data;
}

QVector<int> paintedTiles(const PlotAreaWidget& widget)
{
    QVector<int> painted;
    for (int i = 0; i < widget.GetTileCount(); ++i) {
        if (widget.GetTile(i) && widget.GetTile(i)->m_Painted)
            painted.append(i);
    }
    return painted;
}

QVector<int> attributesOf(const PlotAreaWidget& widget)
{
    QVector<int> attributes;
    for (int i = 0; i < widget.GetPlotCount(); ++i)
        attributes.append(widget.GetPlot(i)->GetAttribute());
    return attributes;
}

bool hasInk(const QImage& image, const QRect& area)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (qGray(image.pixel(x, y)) < 160)
                return true;
        }
    }
    return false;
}
} // namespace

class TestPlotArea : public QObject
{
    Q_OBJECT
private slots:
    void togglesPlotsInOrder();
    void laysOutPlots();
    void paintsTilesNearTheVisibleRange_data();
    void paintsTilesNearTheVisibleRange();
    void tilesShowTheWholeRecording_data();
    void tilesShowTheWholeRecording();
    void staleOnlyAfterResize();
    void staysAliveWithOddSizes_data();
    void staysAliveWithOddSizes();
    void plotsARange();
    void highlightsRanges();
    void multiSelectionBand();
    void labelsStudies();
    void zoomsAndScrolls();
};

void TestPlotArea::togglesPlotsInOrder()
{
    const auto data = makeRecording(50);
    PlotAreaWidget widget;
    QVERIFY(!widget.GetTimeAxis());
    widget.SetDataSet(data.get());
    for (const int attribute : {2, 0, 1})
        widget.TogglePlot(attribute);
    QCOMPARE(attributesOf(widget), QVector<int>({2, 0, 1}));
    QCOMPARE(widget.GetTimeAxis(), widget.GetPlot(0)->GetTimeAxis());
    widget.TogglePlot(0);
    QCOMPARE(attributesOf(widget), QVector<int>({2, 1}));
    widget.TogglePlot(0);
    QCOMPARE(attributesOf(widget), QVector<int>({2, 1, 0}));
    double values[] = {1, 2, 3};
    widget.AddPlot(values, 3, QStringLiteral("array"));
    widget.RemovePlot(7);
    QCOMPARE(attributesOf(widget), QVector<int>({2, 1, 0, -1}));
    widget.ClearAndAddPlot(1);
    QCOMPARE(attributesOf(widget), QVector<int>({1}));
    widget.SetDataSet(nullptr);
    QVERIFY(attributesOf(widget).isEmpty());
}

void TestPlotArea::laysOutPlots()
{
    const auto data = makeRecording(50);
    PlotAreaWidget widget;
    widget.SetDataSet(data.get());
    widget.ResizePlots(1000, 300);
    widget.AddPlot(0);
    QCOMPARE(widget.PlotHeight(), 290);
    widget.AddPlot(1);
    widget.AddPlot(2);
    QCOMPARE(widget.PlotHeight(), 93);
    QCOMPARE(widget.GetTimeAxis()->GetStart(), QPointF(40, 84));
    QCOMPARE(widget.GetTimeAxis()->GetEnd(), QPointF(1035, 84));
    widget.SetRightMargin(30);
    QCOMPARE(widget.GetTimeAxis()->GetEnd(), QPointF(1005, 84));
}

void TestPlotArea::paintsTilesNearTheVisibleRange_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QVector<int>>("painted");
    // Ten tiles; 100 pixels around the visible range, one tile more, and far ones skipped.
    QTest::newRow("start") << 0 << 1100 << QVector<int>{0, 1};
    QTest::newRow("middle") << 6100 << 6900 << QVector<int>{0, 1, 2, 4, 5, 6};
    QTest::newRow("end") << 11000 << 12000 << QVector<int>{0, 1, 2, 9};
    QTest::newRow("unknown") << -1 << -1 << QVector<int>{0, 1, 2};
}

void TestPlotArea::paintsTilesNearTheVisibleRange()
{
    QFETCH(int, from);
    QFETCH(int, to);
    const auto data = makeRecording(500);
    PlotAreaWidget widget;
    widget.SetViewportOnly(true);
    widget.SetPlotType(1);
    widget.SetDataSet(data.get());
    widget.ResizePlots(12000, 200);
    QCOMPARE(widget.GetTileCount(), 10);
    if (from >= 0 && from < 1200)
        widget.SetVisibleRange(from, to);
    widget.AddPlot(0);
    widget.SetVisibleRange(from, to);
    QTEST(paintedTiles(widget), "painted");

    PlotAreaWidget whole;
    whole.SetDataSet(data.get());
    whole.ResizePlots(12000, 200);
    whole.AddPlot(0);
    QCOMPARE(paintedTiles(whole).size(), 10);
}

void TestPlotArea::tilesShowTheWholeRecording_data()
{
    QTest::addColumn<int>("plotType");
    QTest::addColumn<bool>("viewportOnly");
    QTest::newRow("cuttable, near the view") << 1 << true;
    QTest::newRow("cuttable") << 1 << false;
    QTest::newRow("plain, near the view") << 0 << true;
    QTest::newRow("plain") << 0 << false;
}

void TestPlotArea::tilesShowTheWholeRecording()
{
    QFETCH(int, plotType);
    QFETCH(bool, viewportOnly);
    const auto data = makeRecording(400);
    PlotAreaWidget widget;
    widget.SetPlotType(plotType);
    widget.SetViewportOnly(viewportOnly);
    widget.SetDataSet(data.get());
    widget.ResizePlots(3600, 200);
    widget.AddPlot(0);
    widget.SetVisibleRange(0, 3600);
    const QImage image = widget.grab().toImage();
    QImage exported(3600, 200, QImage::Format_RGB32);
    QPainter painter(&exported);
    widget.PaintWidget(painter);
    for (const int x : {50, 1150, 1190, 1200, 1250, 2390, 2400, 3500, 3570}) {
        QVERIFY2(hasInk(image, {x, 12, 20, 160}), qPrintable(QString::number(x)));
        QVERIFY2(hasInk(exported, {x, 17, 20, 160}), qPrintable(QString::number(x)));
    }
}

void TestPlotArea::staleOnlyAfterResize()
{
    const auto data = makeRecording(50);
    PlotAreaWidget widget;
    widget.SetDataSet(data.get());
    widget.ResizePlots(800, 200);
    widget.AddPlot(0);
    const auto* tile = widget.GetTile(0);
    const qint64 key = tile->cacheKey();
    widget.RepaintCache();
    QCOMPARE(widget.GetTile(0)->cacheKey(), key);
    widget.ResizePlots(800, 200);
    QVERIFY(!widget.GetTile(0)->m_Painted);
    widget.RepaintCache();
    QVERIFY(widget.GetTile(0)->m_Painted);
    // A layout resizes without ResizePlots.
    widget.show();
    widget.resize(1300, 220);
    QCOMPARE(paintedTiles(widget), QVector<int>({0, 1}));
    widget.ClearPlot();
    widget.ResizePlots(widget.width(), widget.height());
    widget.RepaintCache();
    QVERIFY(paintedTiles(widget).isEmpty());
}

void TestPlotArea::staysAliveWithOddSizes_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("rows");
    QTest::newRow("nothing") << QSize(0, 0) << 50;
    QTest::newRow("no height") << QSize(500, 0) << 50;
    QTest::newRow("tiny") << QSize(3, 7) << 50;
    QTest::newRow("500 screens") << QSize(600000, 200) << 5000;
    QTest::newRow("one row") << QSize(900, 200) << 1;
}

void TestPlotArea::staysAliveWithOddSizes()
{
    QFETCH(QSize, size);
    QFETCH(int, rows);
    const auto data = makeRecording(rows);
    CutCollection cuts;
    cuts.InsertCut(0, rows, CutSegment::SEGMENT_CUT);
    CuttableLinePlotWidget widget;
    widget.SetDataSet(data.get());
    widget.SetCutCollection(&cuts);
    widget.AddPlot(0);
    widget.AddPlot(2);
    widget.ResizePlots(size.width(), size.height());
    widget.SetVisibleRange(size.width() - 1000, size.width());
    QCOMPARE(widget.GetTileCount(), (size.height() > 0 ? size.width() + 1199 : 0) / 1200);
    const QRect end(size.width() - 500, 0, 480, std::max(size.height(), 1));
    QPixmap view(end.size());
    view.fill(Qt::white);
    widget.render(&view, QPoint(), QRegion(end));
    // The end of a long recording is painted like its start.
    QVERIFY(size.width() < 1000 || hasInk(view.toImage(), QRect(100, 12, 300, 60)));
    QVERIFY(paintedTiles(widget).size() <= 5);
}

void TestPlotArea::plotsARange()
{
    const auto data = makeRecording(100);
    PlotAreaWidget widget;
    widget.SetDataSet(data.get());
    widget.ResizePlots(1000, 200);
    int from = 0;
    int to = 0;
    QVERIFY(!widget.GetRange(from, to));
    widget.PlotDataRange(20, 31);
    widget.AddPlot(0);
    QVERIFY(widget.GetRange(from, to));
    QCOMPARE(widget.GetTimeAxis()->GetLastIndex(), 10);
    widget.PlotDataRange(5, 5);
    QVERIFY(!widget.GetRange(from, to));
    double values[] = {1, 2, 3};
    widget.AddPlot(values, 3, QStringLiteral("array"));
    widget.ClearPlotRange();
    QCOMPARE(widget.GetTimeAxis()->GetLastIndex(), 99);
    QCOMPARE(widget.GetPlot(1)->GetTimeAxis()->GetLastIndex(), 2);
}

void TestPlotArea::highlightsRanges()
{
    const auto data = makeRecording(101);
    SelectionPlotAreaWidget widget;
    widget.SetDataSet(data.get());
    widget.ResizePlots(1005, 200);
    widget.AddPlot(0);
    widget.SetRightMargin(35);
    QCOMPARE(widget.GetTimeAxis()->GetEnd().x(), 1005.0);
    const QColor faintYellow(255, 255, 153);
    const auto colorAt = [&](int row) {
        const int x = int(40 + widget.GetTimeAxis()->ToPixel(row)) + 4;
        return widget.grab().toImage().pixelColor(x, 2);
    };
    widget.SetSelection(20, 40);
    QCOMPARE(colorAt(20), faintYellow);
    QCOMPARE(colorAt(39), faintYellow);
    QCOMPARE(colorAt(19), QColor(Qt::white));
    QCOMPARE(colorAt(40), QColor(Qt::white));
    widget.ClearSelection();
    QCOMPARE(colorAt(30), QColor(Qt::white));
}

void TestPlotArea::multiSelectionBand()
{
    const auto data = makeRecording(101);
    MultiSelectionPlotAreaWidget widget;
    widget.SetDataSet(data.get());
    widget.ResizePlots(1040, 200);
    widget.AddPlot(0);
    widget.SetRightMargin(35);
    widget.show();
    int from = 0;
    int to = 0;
    const auto drag = [&](int start, int end) {
        DragMouse(widget, {start, 50}, {end, 50});
        return widget.GetSelection(from, to);
    };
    QVERIFY(!drag(40, 300));
    QVERIFY(drag(341, 141));
    QCOMPARE(std::make_pair(from, to), std::make_pair(10, 30));
    QVERIFY(drag(945, 1400));
    QCOMPARE(std::make_pair(from, to), std::make_pair(90, 100));
    widget.ClearSelection();
    QVERIFY(!widget.GetSelection(from, to));

    widget.AddRange(10, 20);
    widget.SetHeadCalibration(RowSpan{30, 40}, RowSpan{50, 60});
    const QImage image = widget.grab().toImage();
    QCOMPARE(image.pixelColor(185, 3), QColor(153, 153, 255));
    QCOMPARE(image.pixelColor(385, 3), QColor(153, 153, 255));
    QCOMPARE(image.pixelColor(585, 3), QColor(153, 255, 153));
    QCOMPARE(image.pixelColor(485, 3), QColor(Qt::white));
}

void TestPlotArea::labelsStudies()
{
    const auto data = makeRecording(101);
    StudyLabelInstance dive(QStringLiteral("dive"), Qt::red);
    QList<StudyLabelInstance*> labels{&dive};
    PlotAreaLabelWidget widget;
    widget.SetDataSet(data.get());
    widget.ResizePlots(1040, 200);
    widget.AddPlot(0);
    widget.SetRightMargin(35);
    widget.SetLabelCollection(&labels);
    widget.show();
    widget.labelClicked(&dive);
    QVERIFY(dive.GetSpans().isEmpty());
    DragMouse(widget, {141, 50}, {341, 50});
    QContextMenuEvent open(QContextMenuEvent::Mouse, {200, 50}, widget.mapToGlobal({200, 50}));
    QCoreApplication::sendEvent(&widget, &open);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QMenu* sections = menu->actions().value(0)->menu();
    QCOMPARE(sections->title(), QStringLiteral("Label Section"));
    QCOMPARE(sections->actions().value(0)->text(), QStringLiteral("dive"));
    sections->actions().value(0)->trigger();
    menu->close();
    QCOMPARE(dive.GetSpans(), (QList<RowSpan>{{10, 30}}));
    QCOMPARE(widget.grab().toImage().pixelColor(245, 4), QColor(255, 204, 204));
}

void TestPlotArea::zoomsAndScrolls()
{
    const auto data = makeRecording(3000);
    PlotZoomWidget zoom;
    zoom.resize(900, 400);
    zoom.GetPlotArea()->SetDataSet(data.get());
    zoom.GetPlotArea()->AddPlot(0);
    zoom.show();
    QVERIFY(QTest::qWaitForWindowExposed(&zoom));
    auto* area = zoom.findChild<QScrollArea*>();
    QCOMPARE(zoom.GetPlotArea()->width(), area->width() - 5);
    zoom.findChild<QSlider*>()->setValue(20);
    QCOMPARE(zoom.GetPlotArea()->width(), 20 * (area->width() - 5));
    QCOMPARE(zoom.GetPlotArea()->height(), area->height() - 20);
    QScrollBar* bar = area->horizontalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    bar->setValue(bar->maximum());
    QVERIFY(paintedTiles(*zoom.GetPlotArea()).contains(zoom.GetPlotArea()->GetTileCount() - 1));
    QVERIFY(paintedTiles(*zoom.GetPlotArea()).size() < zoom.GetPlotArea()->GetTileCount());
}

QTEST_MAIN(TestPlotArea)
#include "tst_plotarea.moc"
