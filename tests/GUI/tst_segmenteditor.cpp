#include "behaviorselectiondialog.h"
#include "cuttablelineplotwidget.h"
#include "dataset.h"
#include "liverecording.h"
#include "modalscript.h"
#include "mousedrag.h"
#include "patternsdataobject.h"
#include "segmenteditor.h"
#include "segmenttext.h"
#include "templatedialog.h"
#include "testdata.h"
#include "timeaxis.h"
#include <QComboBox>
#include <QMenu>
#include <QSignalSpy>
#include <QtTest>

class TestSegmentEditor : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cut_data();
    void cut();
    void merge();
    void deletesRange();
    void deletesRow();
    void moves();
    void templatesNeedRows_data();
    void templatesNeedRows();

private:
    QPoint pixel(int row) const;
    // Drags from one row to another; the same row twice is a plain click.
    void drag(int from, int to);
    void selectRow(int row);
    void moveTo(int behavior);
    QString segments() const { return ToText(*m_Recording->GetCutCollection()); }
    // Two behaviours, the first one on rows 20 to 40, and a search result on rows 60 to 80.
    void addLabels();

    std::unique_ptr<LiveRecording> m_Recording;
    std::unique_ptr<CuttableLinePlotWidget> m_Plot;
    std::unique_ptr<SegmentEditor> m_Editor;
};

void TestSegmentEditor::init()
{
    m_Recording = std::make_unique<LiveRecording>(MakeDataSet(QByteArray("1\n").repeated(100)));
    m_Plot = std::make_unique<CuttableLinePlotWidget>();
    m_Plot->SetRecording(m_Recording.get());
    m_Plot->AddPlot(0);
    m_Plot->ResizePlots(1040, 200);
    m_Editor = std::make_unique<SegmentEditor>(nullptr, m_Plot.get());
}

void TestSegmentEditor::addLabels()
{
    CutCollection& cuts = *m_Recording->GetCutCollection();
    m_Recording->GetLabelling().Import(
        {{QStringLiteral("walk"), {{20, 40}}}, {QStringLiteral("rest"), {}}});
    cuts.InsertCut(60, 80, CutSegment::SEGMENT_RESULT);
}

QPoint TestSegmentEditor::pixel(int row) const
{
    const TimeAxis* axis = m_Plot->GetTimeAxis();
    // Half a row further in, where no rounding reaches the neighbour.
    return {int(axis->GetStart().x() + double(axis->ToPixel(row))) + 5, 50};
}

void TestSegmentEditor::selectRow(int row)
{
    m_Plot->showContextMenu(pixel(row));
    QApplication::activePopupWidget()->close();
}

void TestSegmentEditor::drag(int from, int to)
{
    DragMouse(*m_Plot, pixel(from), pixel(to));
}

void TestSegmentEditor::cut_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("errors");
    QTest::newRow("range") << 20 << 60 << "(0,20) (20,60) (60,100)" << 0;
    QTest::newRow("right to left is refused silently") << 60 << 20 << "(0,100)" << 0;
    QTest::newRow("a click selects nothing") << 30 << 30 << "(0,100)" << 1;
}

void TestSegmentEditor::cut()
{
    QFETCH(int, from);
    QFETCH(int, to);
    drag(from, to);
    m_Editor->Cut(m_Recording.get());
    QTEST(segments(), "expected");
    QTEST(TakeUserErrors().size(), "errors");
    QVERIFY(!m_Plot->GetSelectedRange());
}

void TestSegmentEditor::merge()
{
    drag(20, 60);
    m_Editor->Cut(m_Recording.get());
    m_Editor->Merge(m_Recording.get());
    QCOMPARE(TakeUserErrors().size(), 1);
    drag(10, 70);
    m_Editor->Merge(m_Recording.get());
    QCOMPARE(segments(), QStringLiteral("(0,100)"));
}

void TestSegmentEditor::deletesRange()
{
    m_Editor->Delete(m_Recording.get());
    QCOMPARE(TakeUserErrors().size(), 1);
    addLabels();
    const QString before = segments();
    drag(25, 75);
    m_Editor->Delete(m_Recording.get());
    QCOMPARE(segments(), before);
    drag(10, 90);
    m_Editor->Delete(m_Recording.get());
    QCOMPARE(segments(), QStringLiteral("(0,20) (20,40) (40,100)"));
    QCOMPARE(m_Recording->GetLabelCollection()->GetLabel(0)->GetInstanceCount(), 0);
}

void TestSegmentEditor::deletesRow()
{
    addLabels();
    selectRow(10);
    m_Editor->Delete(m_Recording.get());
    QCOMPARE(segments(), QStringLiteral("(0,20) L(20,40) (40,60) R(60,80) (80,100)"));
    selectRow(70);
    m_Editor->Delete(m_Recording.get());
    QCOMPARE(segments(), QStringLiteral("(0,20) L(20,40) (40,100)"));
    selectRow(30);
    m_Editor->Delete(m_Recording.get());
    QCOMPARE(segments(), QStringLiteral("(0,20) (20,40) (40,100)"));
    QCOMPARE(m_Recording->GetLabelCollection()->GetLabel(0)->GetInstanceCount(), 0);
}

void TestSegmentEditor::moveTo(int behavior)
{
    ModalScript user;
    user.On<BehaviorSelectionDialog>([behavior](BehaviorSelectionDialog* dialog) {
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Select Behavior"));
        dialog->findChild<QComboBox*>()->setCurrentIndex(behavior);
        ClickButton(dialog, QStringLiteral("Save"));
    });
    m_Editor->Move(m_Recording.get());
}

void TestSegmentEditor::moves()
{
    addLabels();
    const LabelCollection& labels = *m_Recording->GetLabelCollection();
    QSignalSpy removed(labels.GetLabel(0), &BehaviorLabel::CutRemoved);
    const auto counts = [&] {
        return std::make_pair(labels.GetLabel(0)->GetInstanceCount(),
                              labels.GetLabel(1)->GetInstanceCount());
    };
    selectRow(10);
    moveTo(0);
    QCOMPARE(counts(), std::make_pair(2, 0));
    selectRow(70);
    moveTo(1);
    QCOMPARE(counts(), std::make_pair(2, 1));
    QCOMPARE(removed.count(), 0);
    selectRow(30);
    moveTo(1);
    QCOMPARE(counts(), std::make_pair(1, 2));
    QCOMPARE(removed.count(), 1);
    QCOMPARE(segments(), QStringLiteral("L(0,20) L(20,40) (40,60) L(60,80) (80,100)"));
    int index = 0;
    QCOMPARE(m_Recording->GetCutCollection()->FindSegment(30, index)->GetColor(),
             labels.GetLabel(1)->GetColor());
}

void TestSegmentEditor::templatesNeedRows_data()
{
    QTest::addColumn<bool>("isLoaded");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("dialogs");
    QTest::newRow("no data") << false << 20 << 60 << 0;
    QTest::newRow("no selection") << true << -1 << -1 << 0;
    QTest::newRow("right to left") << true << 60 << 20 << 0;
    QTest::newRow("a range") << true << 20 << 60 << 3;
    // Adding a template takes a range only.
    QTest::newRow("a row") << true << 30 << 30 << 2;
}

void TestSegmentEditor::templatesNeedRows()
{
    QFETCH(bool, isLoaded);
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(int, dialogs);
    LiveRecording* recording = isLoaded ? m_Recording.get() : nullptr;
    if (from == to && from != -1)
        selectRow(from);
    else if (from != -1)
        drag(from, to);
    ModalScript user;
    for (int i = 0; i < dialogs; ++i)
        user.On<TemplateDialog>([](TemplateDialog* dialog) { dialog->reject(); });
    QVERIFY(!m_Editor->Save(recording));
    m_Editor->Search(recording);
    m_Editor->AddTemplate(recording);
    QCOMPARE(TakeUserErrors().size(), 3 - dialogs);
    QCOMPARE(segments(), QStringLiteral("(0,100)"));
}

QTEST_MAIN(TestSegmentEditor)
#include "tst_segmenteditor.moc"
