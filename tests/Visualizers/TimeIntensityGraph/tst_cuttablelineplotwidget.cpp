#include "areascene.h"
#include "cutcollection.h"
#include "cuttablelineplotwidget.h"
#include "lineplotwidget.h"
#include "mousedrag.h"
#include "segmenttext.h"
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
    void selectionEnds();
    void keys();
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

    std::unique_ptr<CutCollection> m_Cuts;
    std::unique_ptr<AreaScene<RecordingPlotWidget>> m_Scene;
    RecordingPlotWidget* m_Widget = nullptr;
};

void TestCuttableLinePlotWidget::init()
{
    m_Scene = std::make_unique<AreaScene<RecordingPlotWidget>>(97);
    m_Widget = &m_Scene->m_Area;
    m_Cuts = std::make_unique<CutCollection>();
    MakeCuts(*m_Cuts, "30 60L 70 80R 96");
    m_Cuts->GetSegment(1)->SetColor(Qt::red);
    m_Widget->SetCutCollection(m_Cuts.get());
    m_Widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_Widget));
}

void TestCuttableLinePlotWidget::drag(int from, int to)
{
    DragMouse(*m_Widget, {from, 50}, {to, 50});
}

void TestCuttableLinePlotWidget::selectionEnds()
{
    drag(141, 345);
    QTest::mousePress(m_Widget, Qt::RightButton, {}, {200, 50});
    QVERIFY(m_Widget->GetSelectedRange());
    m_Widget->ClearSelection();
    QVERIFY(!m_Widget->GetSelectedRange());
    drag(141, 345);
    m_Widget->ResizePlots(1200, 200);
    QVERIFY(!m_Widget->GetSelectedRange());
}

void TestCuttableLinePlotWidget::keys()
{
    QSignalSpy cuts(m_Widget, &CuttableLinePlotWidget::CutRequested);
    QTest::keyClick(m_Widget, Qt::Key_C);
    QCOMPARE(cuts.count(), 1);
    QTest::keyClick(m_Widget, Qt::Key_Right);
    QCOMPARE(m_Widget->GetSelectedRow().value_or(-1), 4);
    QTest::keyClick(m_Widget, Qt::Key_Left);
    QCOMPARE(m_Widget->GetSelectedRow().value_or(-1), 0);
    for (int i = 0; i < 40; ++i)
        QTest::keyClick(m_Widget, Qt::Key_Right);
    QCOMPARE(m_Widget->GetSelectedRow().value_or(-1), 97);
    drag(141, 345);
    QSignalSpy deletions(m_Widget, &CuttableLinePlotWidget::DeleteActionRequested);
    QTest::keyClick(m_Widget, Qt::Key_Delete);
    QCOMPARE(deletions.count(), 1);
    QTest::keyClick(m_Widget, Qt::Key_Right);
    QTest::keyClick(m_Widget, Qt::Key_Escape);
    QVERIFY(!m_Widget->GetSelectedRow() && !m_Widget->GetSelectedRange());
}

void TestCuttableLinePlotWidget::adjustedPosition()
{
    // Rows 30 to 60 are shown as a block of 20: what follows stands 10 further left.
    const std::vector<std::pair<int, int>> rows{{12, 12}, {30, 30}, {35, 45}, {55, 65}, {200, 210}};
    for (const auto& [index, row] : rows)
        QCOMPARE(m_Widget->computeAdjustedTimePosition(index), row);
    m_Widget->SetCutCollection(nullptr);
    QCOMPARE(m_Widget->computeAdjustedTimePosition(55), 55);
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
    using Graph = CuttableLinePlotWidget;
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
    QCOMPARE(window->GetRange(), RowSpan({30, 60}));
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!window);
    // The menu selects the row under the pointer; hidden labels move it.
    QCOMPARE(m_Widget->GetSelectedRow().value_or(-1), 38);
    m_Widget->ShowLabeledData(false);
    QCOMPARE(m_Widget->GetSelectedRow().value_or(-1), 48);

    QSignalSpy saves(m_Widget, &Graph::SaveActionRequested);
    QSignalSpy searches(m_Widget, &Graph::SearchActionRequested);
    QSignalSpy moves(m_Widget, &Graph::MoveActionRequested);
    QSignalSpy deletions(m_Widget, &Graph::DeleteActionRequested);
    QSignalSpy zoomed(m_Widget, &Graph::ZoomOnRegion);
    const auto counts = [&] {
        return QVector<int>{saves.count(), searches.count(), moves.count(), deletions.count()};
    };
    choose({425, 50}, 0);
    choose({425, 50}, 2);
    QCOMPARE(counts(), (QVector<int>{1, 0, 1, 0}));
    choose({425, 50}, 3);
    drag(141, 345);
    choose({200, 50}, 2);
    QCOMPARE(counts(), (QVector<int>{1, 1, 1, 1}));
    choose({200, 50});
    QCOMPARE(zoomed, (QList<QVariantList>{{10, 30}}));
}

void TestCuttableLinePlotWidget::doubleClickDrags()
{
    QTest::mouseDClick(m_Widget, Qt::LeftButton, {}, {400, 50});
    QCOMPARE(m_Widget->m_Carried, QByteArray("1"));
    QCOMPARE(m_Widget->m_PictureSize, QSize(300, 100));
    m_Widget->m_Carried.clear();
    QTest::mouseDClick(m_Widget, Qt::LeftButton, {}, {20, 50});
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
    const auto data = MakeColumn(std::vector<double>(20001, 0.0));
    CutCollection cuts;
    cuts.InsertCut(0, 20000, CutSegment::SEGMENT_CUT);
    for (int i = 10; i <= 10000; i += 5)
        cuts.InsertCut(i, i % 2 ? CutSegment::SEGMENT_LABELED : CutSegment::SEGMENT_CUT);
    // A row on an eighth of a pixel.
    cuts.InsertCut(15000, 15001, CutSegment::SEGMENT_LABELED)->SetColor(Qt::red);
    m_Widget->SetDataSet(data.get());
    m_Widget->SetCutCollection(&cuts);
    m_Widget->AddPlot(0);
    for (const int x : {100, 300, 400}) {
        const int gray = qGray(pixel(x, 3).rgb());
        QVERIFY2(gray > 60 && gray < 200, qPrintable(QString::number(gray)));
    }
    QCOMPARE(pixel(700, 3), QColor(Qt::white));
    const QColor narrow = pixel(int(m_Widget->GetTimeAxis()->ToX(15000)), 3);
    // Under the outlines of three segments.
    QVERIFY2(narrow.red() > narrow.green() * 5 / 4, qPrintable(narrow.name()));
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
    MoveMouse(*m_Widget, {605, 50});
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
    QTest::mouseDClick(m_Widget, Qt::LeftButton, {}, {400, 50});
    m_Widget->SetDataSet(nullptr);
    m_Widget->AddPlot(0);
    m_Widget->updateTimeAxis();
    m_Widget->ResetVerticalAxes();
    drag(141, 345);
    m_Widget->grab();
    m_Widget->ClearPlot();
    m_Widget->ResizePlots(900, 200);
    m_Widget->grab();
    QTest::keyClick(m_Widget, Qt::Key_Right);
    drag(141, 345);
    QVERIFY(!m_Widget->GetSelectedRange());
    QVERIFY(menuTexts({200, 50}).isEmpty());
}

QTEST_MAIN(TestCuttableLinePlotWidget)
#include "tst_cuttablelineplotwidget.moc"
