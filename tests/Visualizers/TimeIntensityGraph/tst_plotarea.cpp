#include "Plot/linescene.h"
#include "areascene.h"
#include "cutcollection.h"
#include "cuttablelineplotwidget.h"
#include "lineplotlabel.h"
#include "mousedrag.h"
#include "multiselectionplotareawidget.h"
#include "pixmapcache.h"
#include "plotarealabelwidget.h"
#include "plotzoomwidget.h"
#include "selectionplotareawidget.h"
#include <QMenu>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QtTest>

namespace
{
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

const QColor white(Qt::white);
} // namespace

class TestPlotArea : public QObject
{
    Q_OBJECT
private slots:
    void togglesPlotsInOrder();
    void paintsTilesNearTheVisibleRange();
    void tilesShowTheWholeRecording_data();
    void tilesShowTheWholeRecording();
    void staleOnlyAfterResize();
    void staysAliveWithOddSizes_data();
    void staysAliveWithOddSizes();
    void plotsARange();
    void marksRows();
    void labelsStudies();
    void zoomsAndScrolls();
};

void TestPlotArea::togglesPlotsInOrder()
{
    AreaScene<PlotAreaWidget> scene(50, {1000, 300}, 3);
    PlotAreaWidget& widget = scene.m_Area;
    QCOMPARE(widget.PlotHeight(), 290);
    widget.TogglePlot(2);
    widget.TogglePlot(1);
    QCOMPARE(attributesOf(widget), QVector<int>({0, 2, 1}));
    QCOMPARE(widget.PlotHeight(), 93);
    widget.SetRightMargin(30);
    QCOMPARE(widget.GetTimeAxis()->GetStart(), QPointF(40, 84));
    QCOMPARE(widget.GetTimeAxis()->GetEnd(), QPointF(1005, 84));
    widget.TogglePlot(2);
    QCOMPARE(attributesOf(widget), QVector<int>({0, 1}));
    widget.TogglePlot(2);
    double values[] = {1, 2, 3};
    widget.AddPlot(values, 3, QStringLiteral("array"));
    widget.RemovePlot(7);
    QCOMPARE(attributesOf(widget), QVector<int>({0, 1, 2, -1}));
    widget.ClearAndAddPlot(1);
    QCOMPARE(attributesOf(widget), QVector<int>({1}));
    widget.SetDataSet(nullptr);
    QVERIFY(attributesOf(widget).isEmpty() && !widget.GetTimeAxis());
}

void TestPlotArea::paintsTilesNearTheVisibleRange()
{
    // Ten tiles; 100 pixels around the visible range, one tile more, and far ones skipped.
    const std::vector<std::tuple<int, int, QVector<int>>> cases{{0, 1100, {0, 1}},
                                                                {6100, 6900, {0, 1, 2, 4, 5, 6}},
                                                                {11000, 12000, {0, 1, 2, 9}},
                                                                {-1, -1, {0, 1, 2}}};
    for (const auto& [from, to, painted] : cases) {
        AreaScene<PlotAreaWidget> scene(500, {12000, 200});
        QCOMPARE(paintedTiles(scene.m_Area).size(), 10);
        scene.m_Area.SetViewportOnly(true);
        scene.m_Area.SetPlotType(1);
        if (from == 0)
            scene.m_Area.SetVisibleRange(from, to);
        scene.m_Area.ClearAndAddPlot(0);
        scene.m_Area.SetVisibleRange(from, to);
        QCOMPARE(paintedTiles(scene.m_Area), painted);
    }
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
    AreaScene<PlotAreaWidget> scene(400, {3600, 200});
    PlotAreaWidget& widget = scene.m_Area;
    widget.SetPlotType(plotType);
    widget.SetViewportOnly(viewportOnly);
    widget.ClearAndAddPlot(0);
    widget.SetVisibleRange(0, 3600);
    const QImage image = widget.grab().toImage();
    QImage exported(3600, 200, QImage::Format_RGB32);
    QPainter painter(&exported);
    widget.PaintWidget(painter);
    for (const int x : {50, 1150, 1190, 1200, 1250, 2390, 2400, 3500, 3570}) {
        QVERIFY2(darkestIn(image, {x, 12, 20, 160}) < 160, qPrintable(QString::number(x)));
        QVERIFY2(darkestIn(exported, {x, 17, 20, 160}) < 160, qPrintable(QString::number(x)));
    }
    // The export stands lower by a gap; the margin left of the axis has no grid.
    const int axisY = widget.PlotHeight() - 9;
    QVERIFY(qGray(image.pixel(70, axisY)) < 200 && qGray(image.pixel(75, axisY + 4)) > 200);
    QVERIFY(qGray(exported.pixel(70, axisY + 5)) < 200 && qGray(exported.pixel(75, axisY)) > 150);
    QCOMPARE(image.pixelColor(3, 25), white);
    QVERIFY(image.pixelColor(3595, 25) != white);
}

void TestPlotArea::staleOnlyAfterResize()
{
    AreaScene<PlotAreaWidget> scene(50, {800, 200});
    PlotAreaWidget& widget = scene.m_Area;
    const qint64 key = widget.GetTile(0)->cacheKey();
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
    CutCollection cuts;
    cuts.InsertCut(0, rows, CutSegment::SEGMENT_CUT);
    AreaScene<CuttableLinePlotWidget> scene(rows, size, 3);
    CuttableLinePlotWidget& widget = scene.m_Area;
    widget.SetCutCollection(&cuts);
    widget.AddPlot(2);
    widget.SetVisibleRange(size.width() - 1000, size.width());
    QCOMPARE(widget.GetTileCount(), (size.height() > 0 ? size.width() + 1199 : 0) / 1200);
    const QRect end(size.width() - 500, 0, 480, std::max(size.height(), 1));
    QPixmap view(end.size());
    view.fill(Qt::white);
    widget.render(&view, QPoint(), QRegion(end));
    // The end of a long recording is painted like its start.
    QVERIFY(size.width() < 1000 || darkestIn(view.toImage(), {100, 12, 300, 60}) < 160);
    QVERIFY(paintedTiles(widget).size() <= 5);
}

void TestPlotArea::plotsARange()
{
    AreaScene<PlotAreaWidget> scene(100);
    PlotAreaWidget& widget = scene.m_Area;
    QVERIFY(!widget.GetRange());
    widget.PlotDataRange(20, 31);
    QCOMPARE(widget.GetTimeAxis()->GetLastIndex(), 10);
    widget.ClearAndAddPlot(0);
    QVERIFY(widget.GetRange());
    QCOMPARE(widget.GetTimeAxis()->GetLastIndex(), 10);
    widget.PlotDataRange(5, 5);
    QVERIFY(!widget.GetRange());
    double values[] = {1, 2, 3};
    widget.AddPlot(values, 3, QStringLiteral("array"));
    widget.ClearPlotRange();
    QCOMPARE(widget.GetTimeAxis()->GetLastIndex(), 99);
    QCOMPARE(widget.GetPlot(1)->GetTimeAxis()->GetLastIndex(), 2);
}

void TestPlotArea::marksRows()
{
    const QColor yellow(255, 255, 153);
    const QColor blue(153, 153, 255);
    const QColor green(153, 255, 153);
    AreaScene<SelectionPlotAreaWidget> selection(97);
    selection.m_Area.SetSelection(20, 40);
    QCOMPARE(selection.ColorsAt({19, 20, 39, 40}), (QVector<QColor>{white, yellow, yellow, white}));
    selection.m_Area.ClearSelection();
    QCOMPARE(selection.ColorsAt({30}), QVector<QColor>{white});

    // The first row that shows stands at the start of the axis.
    AreaScene<MultiSelectionPlotAreaWidget> ranges(117);
    ranges.m_Area.PlotDataRange(20, 117);
    ranges.m_Area.AddRange(30, 40);
    ranges.m_Area.SetHeadCalibration(RowSpan{50, 60}, RowSpan{70, 80});
    QCOMPARE(ranges.ColorsAt({9, 12, 19, 35, 45, 52}),
             (QVector<QColor>{white, blue, blue, blue, white, green}));
    ranges.m_Area.ClearRanges();
    QCOMPARE(ranges.ColorsAt({12, 35}), (QVector<QColor>{white, blue}));
}

void TestPlotArea::labelsStudies()
{
    StudyLabelInstance dive(QStringLiteral("dive"), Qt::red);
    QList<StudyLabelInstance*> labels{&dive};
    AreaScene<PlotAreaLabelWidget> scene(97);
    PlotAreaLabelWidget& widget = scene.m_Area;
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
    QCOMPARE(scene.ColorsAt({20}), QVector<QColor>{QColor(255, 204, 204)});
}

void TestPlotArea::zoomsAndScrolls()
{
    const auto data = MakeRecording(3000);
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
