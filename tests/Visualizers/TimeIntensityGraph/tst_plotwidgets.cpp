#include "cutsegment.h"
#include "cuttablelineplotwidget.h"
#include "mousedrag.h"
#include "multiplelineplotwidget.h"
#include "multiselectionplotareawidget.h"
#include "plotarealabelwidget.h"
#include "selectionmultiplelineplotwidget.h"
#include "selectionplotwidget.h"
#include "testdata.h"
#include "timeaxis.h"
#include "windowlineplot.h"
#include <QAbstractButton>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>
#include <functional>

namespace
{
/// Answers the next message box and keeps its title and text.
void answer(QMessageBox::StandardButton button, QString& shown)
{
    QTimer::singleShot(0, [button, &shown] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        shown = box->windowTitle() + QLatin1Char('|') + box->text();
        box->button(button)->click();
    });
}

// Low, middle and high stretches of five rows.
const char* const stretches = "0\n0\n0\n0\n0\n5\n5\n5\n5\n5\n10\n10\n10\n10\n10\n";
const QString oneResult =
    QStringLiteral("Reject Results|Are you sure you want to reject 1 results?");
const QColor faintYellow(255, 255, 153);

/// A widget in which the user drags, and how its selected rows are read.
struct Selecting {
    std::shared_ptr<QWidget> m_Widget;
    std::function<bool(int&, int&)> m_Read;
};
using Maker = Selecting (*)(DataSet& data);

template <class Area>
Selecting makeArea(DataSet& data)
{
    const auto area = std::make_shared<Area>();
    area->SetDataSet(&data);
    area->ResizePlots(965, 200);
    area->PlotDataRange(20, 117);
    area->AddPlot(0);
    return {area, [area](int& from, int& to) { return area->GetSelection(from, to); }};
}

Selecting makePlot(DataSet& data)
{
    const auto plot = std::make_shared<SelectionPlotWidget>(0);
    plot->SetDataSet(&data);
    plot->resize(960, 200);
    plot->SetRange(20, 117);
    return {plot, [plot](int& from, int& to) { return plot->GetSelection(from, to); }};
}

Selecting makeGraph(DataSet& data)
{
    const auto graph = std::make_shared<CuttableLinePlotWidget>();
    graph->SetDataSet(&data);
    graph->ResizePlots(1495, 200);
    graph->AddPlot(0);
    return {graph, [graph](int& from, int& to) {
                const std::optional<RowSpan> rows = graph->GetSelectedRange();
                from = rows.value_or(RowSpan()).m_From;
                to = rows.value_or(RowSpan()).m_To;
                return rows.has_value();
            }};
}
} // namespace

Q_DECLARE_METATYPE(Maker)

class TestPlotWidgets : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { qRegisterMetaType<CutSegment*>(); }
    void rejectsResults();
    void selectionOverOlderPair();
    void changesAttribute();
    void dragsSelectRows_data();
    void dragsSelectRows();
    void selectionPlot();
    void windowFollowsTheMouse();
    void paintsAnywhereInItsWindow();
};

void TestPlotWidgets::rejectsResults()
{
    const auto data = MakeDataSet(stretches);
    CutSegment low(0, 5);
    CutSegment middle(5, 10);
    CutSegment high(10, 15);
    MultipleLinePlotWidget widget;
    widget.resize(440, 200);
    for (CutSegment* segment : {&low, &middle, &high})
        widget.AddLine(data.get(), segment, 0, segment->GetFrom(), segment->GetTo(), Qt::black);
    widget.RepaintLines();
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QSignalSpy rejected(&widget, &MultipleLinePlotWidget::SegmentRejected);

    const auto inkAt = [&](int y) {
        const QImage image = widget.grab().toImage();
        return qGray(image.pixel(255, y)) < 230 || qGray(image.pixel(255, y - 1)) < 230;
    };
    QVERIFY(inkAt(100));
    QString shown;
    answer(QMessageBox::No, shown);
    DragMouse(widget, {150, 80}, {350, 120});
    QCOMPARE(shown, oneResult);
    QCOMPARE(widget.GetLineCount(), 3);
    answer(QMessageBox::Yes, shown);
    DragMouse(widget, {350, 120}, {150, 80});
    QCOMPARE(widget.GetLineCount(), 2);
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(rejected.first().first().value<CutSegment*>(), &middle);
    QVERIFY(!inkAt(102));

    // No line there: no question, and the band is gone.
    const QImage remaining = widget.grab().toImage();
    DragMouse(widget, {150, 80}, {350, 120});
    MoveMouse(widget, {300, 150});
    QCOMPARE(widget.grab().toImage(), remaining);
    answer(QMessageBox::Yes, shown);
    DragMouse(widget, {150, 0}, {350, 199});
    QVERIFY(shown.contains(QStringLiteral("reject 2 results?")));
    QCOMPARE(rejected.count(), 3);
    QCOMPARE(widget.GetLineCount(), 0);
    widget.RemoveCutSegment(&low);
    widget.grab();
}

void TestPlotWidgets::selectionOverOlderPair()
{
    const auto data = MakeDataSet(stretches);
    double signal[] = {1, 1};
    SelectionMultipleLinePlotWidget widget;
    widget.resize(440, 200);
    widget.AddLine(signal, 2, Qt::blue);
    widget.AddLine(data.get(), 0, 0, 5, Qt::black);
    widget.AddLine(data.get(), 0, 10, 15, Qt::black);
    widget.SetAlpha(0.4);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QSignalSpy removed(&widget, &SelectionMultipleLinePlotWidget::ItemsRemoved);
    QString shown;
    answer(QMessageBox::Yes, shown);
    DragMouse(widget, {150, 0}, {350, 40});
    QCOMPARE(shown, oneResult);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(widget.GetLineCount(), 2);
    QCOMPARE(widget.GetRemovedRanges(), (QList<RowSpan>{{10, 15}}));

    OldMultipleLinePlotWidget plain;
    plain.resize(440, 200);
    plain.AddLine(data.get(), 0, 0, 5, Qt::black);
    plain.show();
    DragMouse(plain, {150, 0}, {350, 199});
    QCOMPARE(plain.GetLineCount(), 1);
}

void TestPlotWidgets::changesAttribute()
{
    const auto data = MakeDataSet("0 10\n0 10\n0 10\n10 0\n");
    CutSegment segment(0, 3);
    MultipleLinePlotWidget widget;
    widget.resize(440, 200);
    widget.AddLine(data.get(), &segment, 0, 0, 3, Qt::black);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    const auto inkNear = [&](int y) {
        const QImage image = widget.grab().toImage();
        return std::min(qGray(image.pixel(255, y)), qGray(image.pixel(255, y - 1)));
    };
    QVERIFY(inkNear(9) > 200);
    widget.ChangeAttributeID(1);
    QVERIFY(inkNear(9) < 220);
    widget.ChangeAttributeID(7);
    QVERIFY(inkNear(9) < 220);
}

// Rows stand 10 pixels apart from pixel 40 on, row 20 there unless it is the main graph.
void TestPlotWidgets::dragsSelectRows_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<QVector<int>>("rows");
    QTest::addColumn<bool>("isSeen");
    const auto row = [](const char* name, Maker maker, int start, int end, QVector<int> rows,
                        bool isSeen) {
        QTest::newRow(name) << maker << start << end << rows << isSeen;
    };
    row("graph", &makeGraph, 141, 345, {10, 30}, true);
    row("graph, left of the axis", &makeGraph, 5, 345, {0, 30}, true);
    row("graph, beyond the end", &makeGraph, 141, 1701, {10, 166}, true);
    row("graph, backwards", &makeGraph, 345, 141, {30, 10}, false);
    row("plot", &makePlot, 141, 345, {30, 50}, true);
    row("plot, backwards", &makePlot, 345, 141, {30, 50}, false);
    row("plot, beyond the data", &makePlot, 141, 2000, {30, 149}, true);
    row("plot, a click", &makePlot, 345, 345, {}, false);
    row("labels", &makeArea<PlotAreaLabelWidget>, 141, 345, {30, 50}, true);
    const Maker ranges = &makeArea<MultiSelectionPlotAreaWidget>;
    row("ranges", ranges, 141, 345, {30, 50}, true);
    row("ranges, on the axis", ranges, 40, 345, {}, false);
    row("ranges, back before the axis", ranges, 345, 3, {20, 50}, true);
    row("ranges, beyond the end", ranges, 141, 1400, {30, 116}, true);
    row("ranges, from beyond the end", ranges, 1400, 141, {30, 116}, true);
}

void TestPlotWidgets::dragsSelectRows()
{
    QFETCH(Maker, maker);
    QFETCH(int, start);
    QFETCH(int, end);
    const auto data = MakeRecording(150);
    const Selecting selecting = maker(*data);
    QWidget& widget = *selecting.m_Widget;
    widget.show();
    const auto selected = [&] {
        int from = 0;
        int to = 0;
        return selecting.m_Read(from, to) ? QVector<int>{from, to} : QVector<int>{};
    };
    DragMouse(widget, {start, 50}, {end, 50}, Qt::RightButton);
    QCOMPARE(selected(), QVector<int>{});
    DragMouse(widget, {start, 50}, {end, 50});
    // Without its button the pointer takes no end with it.
    MoveMouse(widget, {250, 50});
    QTEST(selected(), "rows");
    QTEST(widget.grab().toImage().pixelColor(246, 3) == faintYellow, "isSeen");
    QTest::mousePress(&widget, Qt::LeftButton, {}, {500, 50});
    QCOMPARE(selected(), QVector<int>{});
}

void TestPlotWidgets::selectionPlot()
{
    const auto data = MakeRecording(150);
    SelectionPlotWidget widget(0);
    widget.resize(960, 150);
    widget.SetDataSet(data.get());
    widget.SetRange(20, 117);
    widget.show();
    int from = 0;
    int to = 0;
    widget.SetSelection(25, 30);
    QVERIFY(widget.GetSelection(from, to));
    QCOMPARE(std::make_pair(from, to), std::make_pair(25, 30));
    widget.SetSecondSelection(34, 36);
    const QImage image = widget.grab().toImage();
    QCOMPARE(image.pixelColor(115, 3), faintYellow);
    QCOMPARE(image.pixelColor(195, 3), faintYellow);
    widget.ClearSelection();
    widget.ClearSecondSelection();
    QVERIFY(!widget.GetSelection(from, to));
    QCOMPARE(widget.grab().toImage().pixelColor(195, 3), QColor(Qt::white));
}

void TestPlotWidgets::windowFollowsTheMouse()
{
    const auto data = MakeRecording(41);
    WindowLinePlot widget(0);
    widget.resize(400, 150);
    widget.SetDataSet(data.get());
    widget.show();
    int from = 0;
    int to = 0;
    QVERIFY(!widget.GetSelection(from, to));
    MoveMouse(widget, {141, 40});
    QVERIFY(widget.GetSelection(from, to));
    QCOMPARE(std::make_pair(from, to), std::make_pair(10, 20));
    widget.AddSample(25, 28);
    const QImage image = widget.grab().toImage();
    QCOMPARE(image.pixelColor(185, 3), faintYellow);
    QCOMPARE(image.pixelColor(305, 3), QColor(153, 153, 255));
    QCOMPARE(image.pixelColor(350, 3), QColor(Qt::white));
}

void TestPlotWidgets::paintsAnywhereInItsWindow()
{
    const auto data = MakeDataSet(QByteArray("1\n2\n").repeated(50));
    QWidget window;
    window.resize(900, 500);
    LinePlotWidget plot(0, &window);
    plot.SetDataSet(data.get());
    plot.setGeometry(400, 250, 400, 200);
    const QImage there = window.grab(plot.geometry()).toImage();
    plot.move(0, 0);
    QCOMPARE(there, window.grab(plot.geometry()).toImage());
}

QTEST_MAIN(TestPlotWidgets)
#include "tst_plotwidgets.moc"
