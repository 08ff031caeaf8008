#include "behaviorselectiondialog.h"
#include "cutsegmentpushbutton.h"
#include "modalscript.h"
#include "mousedrag.h"
#include "multiplelineplotwidget.h"
#include "resultwidget.h"
#include "segmentresizedialog.h"
#include "segmentresizewidget.h"
#include "segmenttext.h"
#include "testdata.h"
#include <QComboBox>
#include <QTableView>
#include <QtTest>

class TestResultViews : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { QCOMPARE(TakeUserErrors(), QStringList()); }
    void buttonsBelongToTheirRows();
    void moveSelected();
    void moveAll();
    void refusals();
    void decidedMeanwhile_data();
    void decidedMeanwhile();
    void reject_data();
    void reject();
    void removesAll();
    void rowMenu();
    void attributes();

private:
    void show(const char* ends, int rows = 100);
    int rowCount() const { return m_Table->model()->rowCount(); }
    int lineCount() const { return m_Overlay->GetLineCount(); }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {});
    // The button of that text beside a row.
    CutSegmentPushButton* rowButton(int row, const char* text) const;
    void runMenuEntry(const QString& text);

    std::unique_ptr<DataSet> m_Data;
    std::unique_ptr<CutCollection> m_Cuts;
    std::unique_ptr<LabelCollection> m_Labels;
    std::unique_ptr<ResultWidget> m_Results;
    QTableView* m_Table = nullptr;
    MultipleLinePlotWidget* m_Overlay = nullptr;
};

void TestResultViews::init()
{
    m_Results = std::make_unique<ResultWidget>();
    m_Cuts = std::make_unique<CutCollection>();
    m_Labels = std::make_unique<LabelCollection>();
    m_Labels->AddLabel(new BehaviorLabel(QStringLiteral("Fly"), Qt::red));
    m_Labels->AddLabel(new BehaviorLabel(QStringLiteral("Dive"), Qt::blue));
}

void TestResultViews::show(const char* ends, int rows)
{
    m_Data = MakeDataSet(QByteArray("1 3\n2 1\n").repeated(rows / 2));
    if (ends)
        MakeCuts(*m_Cuts, ends);
    m_Results->SetDataSet(m_Data.get());
    m_Results->SetCutCollection(m_Cuts.get());
    m_Results->SetLabelCollection(m_Labels.get());
    m_Results->Rebuild();
    m_Results->resize(500, 450);
    m_Results->show();
    QVERIFY(QTest::qWaitForWindowActive(m_Results.get()));
    QTest::qWait(1);
    m_Table = m_Results->findChild<QTableView*>();
    m_Overlay = m_Results->findChild<MultipleLinePlotWidget*>();
    m_Table->setFocus();
}

void TestResultViews::clickRow(int row, Qt::KeyboardModifiers modifiers)
{
    const QPoint place = m_Table->visualRect(m_Table->model()->index(row, 1)).center();
    QTest::mouseClick(m_Table->viewport(), Qt::LeftButton, modifiers, place);
}

CutSegmentPushButton* TestResultViews::rowButton(int row, const char* text) const
{
    const QWidget* cell = m_Table->indexWidget(m_Table->model()->index(row, 0));
    return cell ? static_cast<CutSegmentPushButton*>(FindButton(cell, QLatin1String(text)))
                : nullptr;
}

void TestResultViews::runMenuEntry(const QString& text)
{
    // As the menu key sends it.
    QContextMenuEvent event(QContextMenuEvent::Keyboard,
                            m_Table->visualRect(m_Table->currentIndex()).center());
    QApplication::sendEvent(m_Table, &event);
    ChooseFromMenu(text);
}

void TestResultViews::buttonsBelongToTheirRows()
{
    constexpr int candidates = 10000;
    m_Cuts->InsertCut(0, candidates * 10, CutSegment::SEGMENT_CUT);
    for (int i = 0; i < candidates; ++i)
        m_Cuts->InsertCut(i * 10 + 2, i * 10 + 8, CutSegment::SEGMENT_RESULT);
    show(nullptr, candidates * 10);
    QCOMPARE(rowCount(), candidates);
    QVERIFY(m_Table->findChildren<CutSegmentPushButton*>().size() < 40);
    QTest::keyClick(m_Table, Qt::Key_End, Qt::ControlModifier);
    QVERIFY(!rowButton(0, "Reject"));
    // One after the other: the rows below move up.
    for (const int from : {99972, 99982}) {
        QPointer<CutSegmentPushButton> button(rowButton(candidates - 3, "Reject"));
        QVERIFY(button);
        QTest::mouseClick(button, Qt::LeftButton);
        int index = 0;
        QCOMPARE(m_Cuts->FindSegment(from + 1, index)->GetState(), CutSegment::SEGMENT_CUT);
        QTest::qWait(1);
        QVERIFY(!button);
    }
    QCOMPARE(rowCount(), candidates - 2);
    QCOMPARE(m_Cuts->CountSegments(CutSegment::SEGMENT_RESULT), candidates - 2);
    QVERIFY(m_Table->findChildren<CutSegmentPushButton*>().size() < 40);
}

void TestResultViews::moveSelected()
{
    show("10 20R 30 40R 50 60R 70 80R 100");
    QCOMPARE(rowCount(), 4);
    QCOMPARE(lineCount(), 4);
    QSignalSpy updated(m_Results.get(), &ResultWidget::SegmentsUpdated);
    QSignalSpy moved(m_Results.get(), &ResultWidget::MoveResults);
    clickRow(3);
    clickRow(1, Qt::ControlModifier);
    ModalScript script;
    script.On<BehaviorSelectionDialog>([](BehaviorSelectionDialog* dialog) { dialog->reject(); });
    script.On<BehaviorSelectionDialog>([](BehaviorSelectionDialog* dialog) {
        QTest::keyClick(dialog->findChild<QComboBox*>(), Qt::Key_Down);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    ClickButton(m_Results.get(), QStringLiteral("Move Selected"));
    QCOMPARE(rowCount(), 4);
    QCOMPARE(updated.size(), 0);
    ClickButton(m_Results.get(), QStringLiteral("Move Selected"));
    QCOMPARE(ToText(*m_Cuts), QStringLiteral("(0,10) R(10,20) (20,30) L(30,40) (40,50) "
                                             "R(50,60) (60,70) L(70,80) (80,100)"));
    QCOMPARE(rowCount(), 2);
    QCOMPARE(lineCount(), 2);
    QCOMPARE(m_Labels->GetLabel(1)->GetInstanceCount(), 2);
    QCOMPARE(m_Labels->GetLabel(1)->GetInstance(0)->GetSegment()->GetColor(), QColor(Qt::blue));
    QCOMPARE(updated.size(), 1);
    QCOMPARE(moved.size(), 1);
    QCOMPARE(moved.first().first().toString(), QStringLiteral("Dive"));
}

void TestResultViews::moveAll()
{
    show("10 20R 30 40R 100");
    QSignalSpy added(m_Labels->GetLabel(0), &BehaviorLabel::CutsAdded);
    QSignalSpy moved(m_Results.get(), &ResultWidget::MoveResults);
    ModalScript script;
    script.On<BehaviorSelectionDialog>([](BehaviorSelectionDialog* dialog) {
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Move Labels"));
        dialog->accept();
    });
    ClickButton(m_Results.get(), QStringLiteral("Move All"));
    QCOMPARE(rowCount() + lineCount(), 0);
    QCOMPARE(m_Cuts->CountSegments(CutSegment::SEGMENT_LABELED), 2);
    QCOMPARE(added.size(), 1);
    QCOMPARE(moved.size(), 1);
}

void TestResultViews::refusals()
{
    show("10 20R 100");
    ModalScript script;
    const auto errorOf = [&](const char* button) {
        ClickButton(m_Results.get(), QLatin1String(button));
        return TakeUserErrors().join(QLatin1Char(' ')).section(QStringLiteral(": "), 1);
    };
    QCOMPARE(errorOf("Move Selected"), QStringLiteral("Error: No patterns selected."));
    LabelCollection empty;
    m_Results->SetLabelCollection(&empty);
    for (const char* button : {"Move All", "Move Selected", "Move Labels"})
        QCOMPARE(errorOf(button), QStringLiteral("Error: No behavior collections present."));
    QCOMPARE(rowCount(), 1);
    QCOMPARE(ToText(*m_Cuts), QStringLiteral("(0,10) R(10,20) (20,100)"));
}

void TestResultViews::decidedMeanwhile_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("event");
    QTest::addColumn<QString>("expected");
    const QString untouched = QStringLiteral("(0,10) R(10,20) (20,30) R(30,40) (40,100) 0");
    for (const char* button : {"Move All", "Move Selected"}) {
        QTest::addRow("labelled, %s", button)
            << button << 0 << "(0,10) L(10,20) (20,30) L(30,40) (40,100) 2";
        QTest::addRow("merged away, %s", button) << button << 1 << "(0,30) L(30,40) (40,100) 1";
        QTest::addRow("closed, %s", button) << button << 2 << untouched;
        QTest::addRow("behaviour gone, %s", button) << button << 3 << untouched;
    }
}

void TestResultViews::decidedMeanwhile()
{
    QFETCH(QString, button);
    QFETCH(int, event);
    show("10 20R 30 40R 100");
    QTest::keyClick(m_Table, Qt::Key_A, Qt::ControlModifier);
    BehaviorLabel* label = m_Labels->GetLabel(0);
    CutSegment* segment = m_Cuts->GetSegment(1);
    const std::function<void()> events[]{
        [&] { LabelSegment(*label, segment); },
        [&] { m_Cuts->RemoveSegment(segment); },
        [&] { m_Results->SetLabelCollection(nullptr); },
        [&] { m_Labels->RemoveLabel(label); },
    };
    ModalScript script;
    script.Then([&](QDialog* dialog) {
        events[event]();
        dialog->accept();
    });
    ClickButton(m_Results.get(), button);
    QTEST(QString(ToText(*m_Cuts) + QLatin1Char(' ') + QString::number(label->GetInstanceCount())),
          "expected");
}

void TestResultViews::reject_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("left");
    QTest::newRow("row") << "row"
                         << "(0,10) R(10,20) (20,50) R(50,60) (60,100)" << 2;
    QTest::newRow("keys") << "keys"
                          << "(0,30) R(30,40) (40,100)" << 1;
    QTest::newRow("band") << "band"
                          << "(0,100)" << 0;
    // Without a view that sent it, nothing is known about what to take out.
    QTest::newRow("call") << "call"
                          << "(0,10) R(10,20) (20,30) R(30,40) (40,50) R(50,60) (60,100)" << 3;
}

void TestResultViews::reject()
{
    QFETCH(QString, how);
    show("10 20R 30 40R 50 60R 100");
    QSignalSpy updated(m_Results.get(), &ResultWidget::SegmentsUpdated);
    ModalScript script;
    if (how == QStringLiteral("row")) {
        QTest::mouseClick(rowButton(1, "Reject"), Qt::LeftButton);
    } else if (how == QStringLiteral("keys")) {
        clickRow(0);
        clickRow(2, Qt::ControlModifier);
        QTest::keyClick(m_Table, Qt::Key_Delete);
        QCOMPARE(updated.size(), 1);
    } else if (how == QStringLiteral("band")) {
        script.Then([](QDialog* box) { ClickButton(box, QStringLiteral("Yes")); });
        m_Results->findChildren<QComboBox*>().last()->setCurrentIndex(1);
        DragMouse(*m_Overlay, {5, 5}, m_Overlay->rect().bottomRight());
    } else {
        m_Results->rejectSegment(m_Cuts->GetSegment(1));
    }
    QTEST(ToText(*m_Cuts), "expected");
    QTEST(rowCount(), "left");
    QTEST(lineCount(), "left");
    QCOMPARE(updated.isEmpty(), how == QStringLiteral("call"));
}

void TestResultViews::removesAll()
{
    show("10 20R 30 40R 50 60R 70");
    ClickButton(m_Results.get(), QStringLiteral("Remove All"));
    QCOMPARE(ToText(*m_Cuts), QStringLiteral("(0,70)"));
    QCOMPARE(rowCount() + lineCount(), 0);
}

void TestResultViews::rowMenu()
{
    show("10 20R 30 40R 100");
    QSignalSpy shown(m_Results.get(), &ResultWidget::ShowSelected);
    QSignalSpy updated(m_Results.get(), &ResultWidget::SegmentsUpdated);
    clickRow(1);
    runMenuEntry(QStringLiteral("Show In Time-Series"));
    QCOMPARE(shown.value(0), (QVariantList{30, 40}));

    ModalScript script;
    script.On<SegmentResizeDialog>([](SegmentResizeDialog* dialog) {
        dialog->GetResizeWidget()->SetSelection(1, 5);
        // Not beyond the neighbours.
        QCOMPARE(dialog->GetResizeWidget()->GetSelection().m_From, 20);
        dialog->GetResizeWidget()->SetSelection(28, 45);
        dialog->accept();
    });
    runMenuEntry(QStringLiteral("Resize Segment"));
    QCOMPARE(ToText(*m_Cuts), QStringLiteral("(0,10) R(10,20) (20,28) R(28,45) (45,100)"));
    QCOMPARE(updated.size(), 1);
    QCOMPARE(rowCount(), 2);
}

void TestResultViews::attributes()
{
    show("10 20R 100");
    auto* chooser = m_Results->findChildren<QComboBox*>().first();
    QCOMPARE(chooser->count(), 2);
    const QImage before = m_Table->grab().toImage();
    chooser->setCurrentIndex(1);
    QVERIFY(m_Table->grab().toImage() != before);

    m_Data->AddAttribute(QStringLiteral("Depth"), ATTRIBUTE_OTHER);
    m_Results->AddAttribute(2, QStringLiteral("Depth"));
    m_Results->AddAttribute(2, QStringLiteral("Depth"));
    QCOMPARE(chooser->count(), 3);
    m_Results->SetDataSet(nullptr);
    QCOMPARE(rowCount() + lineCount() + chooser->count(), 0);
}

QTEST_MAIN(TestResultViews)
#include "tst_resultviews.moc"
