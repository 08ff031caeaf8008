#include "cutsegment.h"
#include "mousedrag.h"
#include "multiplelineplotwidget.h"
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
} // namespace

class TestPlotWidgets : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { qRegisterMetaType<CutSegment*>(); }
    void rejectsResults();
    void selectionOverOlderPair();
    void changesAttribute();
    void selectionPlot_data();
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

    // No line there: no question.
    DragMouse(widget, {150, 80}, {350, 120});
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

void TestPlotWidgets::selectionPlot_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<QVector<int>>("rows");
    // Rows 20 to 40 over 400 pixels from pixel 40 on.
    QTest::newRow("inside") << 141 << 241 << QVector<int>{25, 30};
    QTest::newRow("backwards") << 241 << 141 << QVector<int>{25, 30};
    QTest::newRow("left of the axis") << 3 << 241 << QVector<int>{20, 30};
    QTest::newRow("beyond the data") << 241 << 1041 << QVector<int>{30, 49};
    QTest::newRow("a click") << 241 << 241 << QVector<int>{};
}

void TestPlotWidgets::selectionPlot()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QString rows;
    for (int i = 0; i < 50; ++i)
        rows += QString::number(i % 3) + QLatin1Char('\n');
    const auto data = MakeDataSet(rows.toUtf8().constData());
    SelectionPlotWidget widget(0);
    widget.resize(400, 150);
    widget.SetDataSet(data.get());
    widget.SetRange(20, 41);
    widget.show();
    DragMouse(widget, {start, 40}, {end, 40});
    int from = 0;
    int to = 0;
    const QVector<int> found =
        widget.GetSelection(from, to) ? QVector<int>{from, to} : QVector<int>{};
    QTEST(found, "rows");
    widget.SetSelection(25, 30);
    QVERIFY(widget.GetSelection(from, to));
    QCOMPARE(std::make_pair(from, to), std::make_pair(25, 30));
    widget.SetSecondSelection(34, 36);
    const QImage image = widget.grab().toImage();
    QCOMPARE(image.pixelColor(185, 3), QColor(255, 255, 153));
    QCOMPARE(image.pixelColor(345, 3), QColor(255, 255, 153));
    widget.ClearSelection();
    widget.ClearSecondSelection();
    QVERIFY(!widget.GetSelection(from, to));
}

void TestPlotWidgets::windowFollowsTheMouse()
{
    QString rows;
    for (int i = 0; i <= 40; ++i)
        rows += QString::number(i % 3) + QLatin1Char('\n');
    const auto data = MakeDataSet(rows.toUtf8().constData());
    WindowLinePlot widget(0);
    widget.resize(400, 150);
    widget.SetDataSet(data.get());
    widget.show();
    int from = 0;
    int to = 0;
    QVERIFY(!widget.GetSelection(from, to));
    QMouseEvent move(QEvent::MouseMove, QPointF(141, 40), Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(&widget, &move);
    QVERIFY(widget.GetSelection(from, to));
    QCOMPARE(std::make_pair(from, to), std::make_pair(10, 20));
    widget.AddSample(25, 28);
    const QImage image = widget.grab().toImage();
    QCOMPARE(image.pixelColor(185, 3), QColor(255, 255, 153));
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
