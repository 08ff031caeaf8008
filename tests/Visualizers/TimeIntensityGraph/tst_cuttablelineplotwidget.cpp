#include "cutcollection.h"
#include "cuttablelineplotwidget.h"
#include "lineplotwidget.h"
#include "mousedrag.h"
#include "testdata.h"
#include "timeaxis.h"
#include <QDrag>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QSignalSpy>
#include <QtTest>

namespace
{
/// Does not run its drags, but keeps what they carry.
class RecordingPlotWidget : public CuttableLinePlotWidget
{
public:
    QByteArray m_Carried;
    QSize m_PictureSize;

protected:
    void runDrag(QDrag& drag) override
    {
        m_Carried = drag.mimeData()->data(QStringLiteral("signal_start_end"));
        m_PictureSize = drag.pixmap().size();
        drag.deleteLater();
    }
};
} // namespace

class TestCuttableLinePlotWidget : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void dragSelects_data();
    void dragSelects();
    void selectionEnds();
    void keys();
    void adjustedPosition_data();
    void adjustedPosition();
    void contextMenu_data();
    void contextMenu();
    void menuEffects();
    void doubleClickDrags();
    void paintsSegments();
    void paintsManySegmentsTogether();
    void paintsSelectionAxisAndOverlay();
    void acceptsNulls();

private:
    void drag(int from, int to);
    QStringList menuTexts(QPoint point);
    QColor pixel(int x, int y) { return m_Widget->grab().toImage().pixelColor(x, y); }

    std::unique_ptr<DataSet> m_Data;
    std::unique_ptr<CutCollection> m_Cuts;
    std::unique_ptr<RecordingPlotWidget> m_Widget;
};

// Rows stand 10 pixels apart, the first one at pixel 40: the axis ends at 40 + 966 - 5.
void TestCuttableLinePlotWidget::init()
{
    m_Data = MakeDataSet("");
    m_Data->AddAttribute(QStringLiteral("depth"), ATTRIBUTE_OTHER);
    for (int i = 0; i <= 96; ++i) {
        auto* row = new DataRow;
        row->AddValue(i % 2);
        row->SetLabel(QString::number(i + 1));
        m_Data->AddRow(row);
    }
    m_Data->ComputeRanges();
    m_Cuts = std::make_unique<CutCollection>();
    m_Cuts->InsertCut(0, 96, CutSegment::SEGMENT_CUT);
    m_Cuts->InsertCut(30, 60, CutSegment::SEGMENT_LABELED)->SetColor(Qt::red);
    m_Cuts->InsertCut(70, 80, CutSegment::SEGMENT_RESULT);

    m_Widget = std::make_unique<RecordingPlotWidget>();
    m_Widget->SetDataSet(m_Data.get());
    m_Widget->SetCutCollection(m_Cuts.get());
    m_Widget->ResizePlots(965, 200);
    m_Widget->AddPlot(0);
    m_Widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_Widget.get()));
}

void TestCuttableLinePlotWidget::cleanup()
{
    m_Widget.reset();
}

void TestCuttableLinePlotWidget::drag(int from, int to)
{
    DragMouse(*m_Widget, {from, 50}, {to, 50});
}

void TestCuttableLinePlotWidget::dragSelects_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::newRow("inside") << 141 << 345 << 10 << 30;
    QTest::newRow("truncated") << 149 << 349 << 10 << 30;
    QTest::newRow("left of the axis") << 5 << 345 << 0 << 30;
    QTest::newRow("beyond the end") << 141 << 1201 << 10 << 116;
    QTest::newRow("backwards") << 345 << 141 << 30 << 10;
}

void TestCuttableLinePlotWidget::dragSelects()
{
    QFETCH(int, start);
    QFETCH(int, end);
    int from = -1;
    int to = -1;
    QVERIFY(!m_Widget->GetSelectedRange(from, to));
    drag(start, end);
    QVERIFY(m_Widget->GetSelectedRange(from, to));
    QTEST(from, "from");
    QTEST(to, "to");
    QVERIFY(!m_Widget->GetSelectedRow(from));
}

void TestCuttableLinePlotWidget::selectionEnds()
{
    int from = 0;
    int to = 0;
    drag(141, 345);
    QTest::mousePress(m_Widget.get(), Qt::RightButton, {}, {200, 50});
    QVERIFY(m_Widget->GetSelectedRange(from, to));
    QTest::mousePress(m_Widget.get(), Qt::LeftButton, {}, {200, 50});
    QVERIFY(!m_Widget->GetSelectedRange(from, to));
    drag(141, 345);
    m_Widget->ClearSelection();
    QVERIFY(!m_Widget->GetSelectedRange(from, to));
    drag(141, 345);
    m_Widget->ResizePlots(1200, 200);
    QVERIFY(!m_Widget->GetSelectedRange(from, to));
}

void TestCuttableLinePlotWidget::keys()
{
    int row = -1;
    QSignalSpy cuts(m_Widget.get(), &CuttableLinePlotWidget::CutRequested);
    QTest::keyClick(m_Widget.get(), Qt::Key_C);
    QCOMPARE(cuts.count(), 1);
    QTest::keyClick(m_Widget.get(), Qt::Key_Right);
    QVERIFY(m_Widget->GetSelectedRow(row));
    QCOMPARE(row, 4);
    QTest::keyClick(m_Widget.get(), Qt::Key_Left);
    QVERIFY(m_Widget->GetSelectedRow(row));
    QCOMPARE(row, 0);
    for (int i = 0; i < 40; ++i)
        QTest::keyClick(m_Widget.get(), Qt::Key_Right);
    QVERIFY(m_Widget->GetSelectedRow(row));
    QCOMPARE(row, 97);
    drag(141, 345);
    QSignalSpy deletions(m_Widget.get(), &CuttableLinePlotWidget::DeleteActionRequested);
    QTest::keyClick(m_Widget.get(), Qt::Key_Delete);
    QCOMPARE(deletions.count(), 1);
    QTest::keyClick(m_Widget.get(), Qt::Key_Right);
    QTest::keyClick(m_Widget.get(), Qt::Key_Escape);
    QVERIFY(!m_Widget->GetSelectedRow(row) && !m_Widget->GetSelectedRange(row, row));
}

void TestCuttableLinePlotWidget::adjustedPosition_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("row");
    // Rows 30 to 60 are shown as a block of 20: what follows stands 10 further left.
    QTest::newRow("before the block") << 12 << 12;
    QTest::newRow("shared row") << 30 << 30;
    QTest::newRow("in the block") << 35 << 45;
    QTest::newRow("behind the block") << 55 << 65;
    QTest::newRow("beyond the end") << 200 << 210;
}

void TestCuttableLinePlotWidget::adjustedPosition()
{
    QFETCH(int, index);
    QTEST(m_Widget->computeAdjustedTimePosition(index), "row");
    m_Widget->SetCutCollection(nullptr);
    QCOMPARE(m_Widget->computeAdjustedTimePosition(index), index);
}

QStringList TestCuttableLinePlotWidget::menuTexts(QPoint point)
{
    QStringList texts;
    m_Widget->showContextMenu(point);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
        return texts;
    for (const QAction* action : menu->actions())
        texts.append(action->text());
    menu->close();
    return texts;
}

void TestCuttableLinePlotWidget::contextMenu_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("selectionEnd");
    QTest::addColumn<QStringList>("entries");
    const QStringList zoom{QStringLiteral("Zoom On Region"), QStringLiteral("Save Template"),
                           QStringLiteral("Search Selection")};
    const QStringList open{QStringLiteral("Save Template"), QStringLiteral("Open Plot"),
                           QStringLiteral("Move To")};
    const QStringList remove = open + QStringList(QStringLiteral("Remove Label(s)"));
    QTest::newRow("plain cut") << 100 << -1 << open;
    QTest::newRow("labelled") << 400 << -1 << remove;
    QTest::newRow("search result") << 790 << -1 << remove;
    QTest::newRow("selection") << 100 << 500 << zoom;
    QTest::newRow("backward selection") << 100 << 150 << open;
    QTest::newRow("outside every segment") << 20 << -1 << QStringList();
}

void TestCuttableLinePlotWidget::contextMenu()
{
    QFETCH(int, x);
    QFETCH(int, selectionEnd);
    if (selectionEnd >= 0)
        drag(200, selectionEnd);
    QTEST(menuTexts({x, 50}), "entries");
}

void TestCuttableLinePlotWidget::menuEffects()
{
    const auto choose = [this](QPoint point, int entry = 0) {
        m_Widget->showContextMenu(point);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        menu->actions().value(entry)->trigger();
        menu->close();
    };
    choose({425, 50}, 1);
    QPointer<LinePlotWidget> window;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* plot = qobject_cast<LinePlotWidget*>(widget))
            window = plot;
    }
    QVERIFY(window && window->isVisible());
    int from = 0;
    int to = 0;
    window->GetRange(from, to);
    QCOMPARE(std::make_pair(from, to), std::make_pair(30, 60));
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!window);
    // The menu selects the row under the pointer; hidden labels move it.
    QVERIFY(m_Widget->GetSelectedRow(from));
    QCOMPARE(from, 38);
    m_Widget->ShowLabeledData(false);
    QVERIFY(m_Widget->GetSelectedRow(from));
    QCOMPARE(from, 48);
    QSignalSpy moves(m_Widget.get(), &CuttableLinePlotWidget::MoveActionRequested);
    QSignalSpy deletions(m_Widget.get(), &CuttableLinePlotWidget::DeleteActionRequested);
    choose({425, 50}, 2);
    QCOMPARE(std::make_pair(moves.count(), deletions.count()), std::make_pair(1, 0));
    choose({425, 50}, 3);
    QCOMPARE(std::make_pair(moves.count(), deletions.count()), std::make_pair(1, 1));

    QSignalSpy saves(m_Widget.get(), &CuttableLinePlotWidget::SaveActionRequested);
    QSignalSpy searches(m_Widget.get(), &CuttableLinePlotWidget::SearchActionRequested);
    choose({425, 50}, 0);
    QCOMPARE(std::make_pair(saves.count(), searches.count()), std::make_pair(1, 0));
    QSignalSpy zoomed(m_Widget.get(), &CuttableLinePlotWidget::ZoomOnRegion);
    drag(141, 345);
    choose({200, 50});
    QCOMPARE(zoomed.count(), 1);
    QCOMPARE(zoomed.first(), (QVariantList{10, 30}));
    choose({200, 50}, 2);
    QCOMPARE(searches.count(), 1);
}

void TestCuttableLinePlotWidget::doubleClickDrags()
{
    QTest::mouseDClick(m_Widget.get(), Qt::LeftButton, {}, {400, 50});
    QCOMPARE(m_Widget->m_Carried, QByteArray("1"));
    QCOMPARE(m_Widget->m_PictureSize, QSize(300, 100));
    m_Widget->m_Carried.clear();
    QTest::mouseDClick(m_Widget.get(), Qt::LeftButton, {}, {20, 50});
    QVERIFY(m_Widget->m_Carried.isEmpty());
}

void TestCuttableLinePlotWidget::paintsSegments()
{
    const QColor faintRed(255, 153, 153);
    // Above the lines; where two outlines meet they darken twice.
    QCOMPARE(pixel(500, 3), faintRed);
    QCOMPARE(pixel(300, 3), QColor(Qt::white));
    QVERIFY(pixel(775, 3) != QColor(Qt::white));
    QCOMPARE(pixel(340, 3), QColor(92, 55, 55));
    m_Widget->ShowLabeledData(false);
    QCOMPARE(pixel(400, 3), QColor(Qt::white));
    // The segment from 60 moves up by 10 rows.
    QVERIFY(qGray(pixel(540, 3).rgb()) < 200);
    QVERIFY(qGray(pixel(640, 3).rgb()) < 200);
}

void TestCuttableLinePlotWidget::paintsManySegmentsTogether()
{
    // Thousands of segments on a few pixels keep a shade in which lines can be seen.
    auto data = MakeDataSet("0\n");
    CutCollection cuts;
    for (int i = 1; i <= 20000; ++i) {
        auto* row = new DataRow;
        row->AddValue(0);
        data->AddRow(row);
    }
    data->ComputeRanges();
    cuts.InsertCut(0, 20000, CutSegment::SEGMENT_CUT);
    for (int i = 10; i <= 10000; i += 5)
        cuts.InsertCut(i, i % 2 ? CutSegment::SEGMENT_LABELED : CutSegment::SEGMENT_CUT);
    m_Widget->SetDataSet(data.get());
    m_Widget->SetCutCollection(&cuts);
    m_Widget->AddPlot(0);
    for (const int x : {100, 300, 400}) {
        const int gray = qGray(pixel(x, 3).rgb());
        QVERIFY2(gray > 60 && gray < 200, qPrintable(QString::number(gray)));
    }
    QCOMPARE(pixel(700, 3), QColor(Qt::white));
}

void TestCuttableLinePlotWidget::paintsSelectionAxisAndOverlay()
{
    m_Widget->SetCutCollection(nullptr);
    // Ticks every 200 pixels with the row's label, and the axis line.
    QVERIFY(qGray(pixel(240, 182).rgb()) < 128);
    QVERIFY(qGray(pixel(245, 183).rgb()) > 200);
    const QImage before = m_Widget->grab().toImage();
    drag(141, 345);
    QCOMPARE(pixel(250, 3), QColor(255, 255, 153));
    const QImage after = m_Widget->grab().toImage();
    const QRect text(350, 1, 90, 11);
    QVERIFY(before.copy(text) != after.copy(text));

    m_Widget->ClearSelection();
    QTest::mouseMove(m_Widget.get(), {605, 50});
    QMouseEvent move(QEvent::MouseMove, QPointF(605, 50), Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(m_Widget.get(), &move);
    QVERIFY(m_Widget->GetEnableOverlay());
    // The value axis stands 10 pixels left of the pointer.
    const QColor with = pixel(595, 12);
    m_Widget->SetEnableOverlay(false);
    QVERIFY(qGray(with.rgb()) < qGray(pixel(595, 12).rgb()));
}

void TestCuttableLinePlotWidget::acceptsNulls()
{
    m_Widget->SetCutCollection(nullptr);
    m_Widget->SetLabelCollection(nullptr);
    QVERIFY(menuTexts({200, 50}).isEmpty());
    QTest::mouseDClick(m_Widget.get(), Qt::LeftButton, {}, {400, 50});
    m_Widget->SetDataSet(nullptr);
    m_Widget->AddPlot(0);
    m_Widget->updateTimeAxis();
    m_Widget->ResetVerticalAxes();
    drag(141, 345);
    m_Widget->grab();
    m_Widget->ClearPlot();
    m_Widget->ResizePlots(900, 200);
    m_Widget->grab();
    QTest::keyClick(m_Widget.get(), Qt::Key_Right);
    drag(141, 345);
    int from = 0;
    int to = 0;
    QVERIFY(!m_Widget->GetSelectedRange(from, to));
    QVERIFY(menuTexts({200, 50}).isEmpty());
}

QTEST_MAIN(TestCuttableLinePlotWidget)
#include "tst_cuttablelineplotwidget.moc"
