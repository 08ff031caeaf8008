#include "addgroupdialog.h"
#include "behaviorselectiondialog.h"
#include "classwidget.h"
#include "cutsegmentpushbutton.h"
#include "labeleddatatabwidget.h"
#include "labellinegraphwidget.h"
#include "modalscript.h"
#include "multiplelineplotwidget.h"
#include "segmenttext.h"
#include "testdata.h"
#include <QComboBox>
#include <QFile>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

namespace
{

// What comes from another program has a class of its own, as the platform makes it.
class ForeignData : public QMimeData
{
    Q_OBJECT
};

} // namespace

class TestClassViews : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { QCOMPARE(TakeUserErrors(), QStringList()); }
    void followsItsBehavior();
    void moveAndRemove();
    void drops_data();
    void drops();
    void colors();
    void names();
    void deleteGroup();
    void letsGoOfBehaviors_data();
    void letsGoOfBehaviors();
    void statsAndExport();
    void smallGraphs();

private:
    ClassWidget* tab(int index) const { return static_cast<ClassWidget*>(m_Bar->widget(index)); }
    static QTableView* table(const ClassWidget* widget) { return widget->findChild<QTableView*>(); }
    // The rows of the table and the lines of the overlay.
    static QPair<int, int> shown(const ClassWidget* widget)
    {
        return {table(widget)->model()->rowCount(),
                widget->findChild<MultipleLinePlotWidget*>()->GetLineCount()};
    }
    BehaviorLabel* label(int index) const { return m_Labels->GetLabel(index); }
    CutSegment* segment(int index) const { return m_Cuts->GetSegment(index); }

    std::unique_ptr<DataSet> m_Data;
    std::unique_ptr<CutCollection> m_Cuts;
    std::unique_ptr<LabelCollection> m_Labels;
    std::unique_ptr<LabeledDataTabWidget> m_Tabs;
    QTabWidget* m_Bar = nullptr;
};

// Two groups: the first has three segments, the second none.
void TestClassViews::init()
{
    m_Tabs = std::make_unique<LabeledDataTabWidget>();
    m_Bar = m_Tabs->findChild<QTabWidget*>();
    m_Data = MakeDataSet(QByteArray("1 3\n2 1\n").repeated(50));
    m_Cuts = std::make_unique<CutCollection>();
    m_Labels = std::make_unique<LabelCollection>();
    MakeCuts(*m_Cuts, "10 20 30 40 50 60 70 80R 100");
    m_Tabs->SetDataSet(m_Data.get());
    m_Tabs->SetCutCollection(m_Cuts.get());
    m_Tabs->SetLabelCollection(m_Labels.get());
    m_Tabs->Rebuild();
    m_Tabs->AddGroup(QStringLiteral("Fly"));
    m_Tabs->AddGroup(QStringLiteral("Dive"));
    for (const int index : {1, 3, 5})
        LabelSegment(*label(0), segment(index));
    m_Tabs->resize(500, 500);
    m_Tabs->show();
    QVERIFY(QTest::qWaitForWindowActive(m_Tabs.get()));
    QTest::qWait(1);
}

void TestClassViews::followsItsBehavior()
{
    QSignalSpy updated(m_Tabs.get(), &LabeledDataTabWidget::SegmentsUpdated);
    QCOMPARE(shown(tab(0)), qMakePair(3, 3));
    QVERIFY(m_Labels->RemoveCut(segment(3)));
    QCOMPARE(segment(3)->GetState(), CutSegment::SEGMENT_CUT);
    QCOMPARE(shown(tab(0)), qMakePair(2, 2));
    QCOMPARE(updated.size(), 1);
    label(1)->AddLabels({MakeInstance(*label(1), segment(3)), MakeInstance(*label(1), segment(4))});
    QCOMPARE(shown(tab(1)), qMakePair(2, 2));

    label(0)->AddLabelQuietly(MakeInstance(*label(0), segment(6)));
    m_Tabs->Refresh();
    QCOMPARE(shown(tab(0)), qMakePair(3, 3));
    // Another panel over the same collection starts with what is there.
    m_Tabs->Rebuild();
    QCOMPARE(m_Bar->count(), 2);
    QCOMPARE(shown(tab(1)), qMakePair(2, 2));
}

void TestClassViews::moveAndRemove()
{
    QSignalSpy updated(m_Tabs.get(), &LabeledDataTabWidget::SegmentsUpdated);
    ModalScript script;
    const auto pickSecond = [](BehaviorSelectionDialog* dialog) {
        dialog->findChild<QComboBox*>()->setCurrentIndex(1);
        dialog->accept();
    };
    script.On<BehaviorSelectionDialog>([](BehaviorSelectionDialog* dialog) { dialog->reject(); });
    script.On<BehaviorSelectionDialog>(pickSecond);
    script.On<BehaviorSelectionDialog>(pickSecond);
    ClickButton(tab(0), QStringLiteral("Move"));
    QVERIFY(TakeUserErrors().value(0).contains(QStringLiteral("No patterns selected.")));
    table(tab(0))->selectRow(1);
    ClickButton(tab(0), QStringLiteral("Move"));
    QCOMPARE(shown(tab(0)), qMakePair(3, 3));
    ClickButton(tab(0), QStringLiteral("Move"));
    QCOMPARE(label(1)->GetInstance(0)->GetSegment(), segment(3));
    QCOMPARE(segment(3)->GetColor(), label(1)->GetColor());
    // The buttons beside a row act on that row, whatever is selected.
    QTest::qWait(1);
    ClickButton(table(tab(0))->indexWidget(table(tab(0))->model()->index(0, 0)),
                QStringLiteral("Move Labels"));
    QCOMPARE(shown(tab(0)), qMakePair(1, 1));
    QCOMPARE(shown(tab(1)), qMakePair(2, 2));
    QVERIFY(label(1)->Contains(segment(1)) && label(0)->Contains(segment(5)));
    QCOMPARE(updated.size(), 2);

    m_Bar->setCurrentIndex(1);
    table(tab(1))->setFocus();
    QTest::keyClick(table(tab(1)), Qt::Key_A, Qt::ControlModifier);
    ClickButton(tab(1), QStringLiteral("Remove Labels"));
    QCOMPARE(shown(tab(1)), qMakePair(0, 0));
    QCOMPARE(label(1)->GetInstanceCount(), 0);
    QCOMPARE(m_Cuts->CountSegments(CutSegment::SEGMENT_LABELED), 1);
    QCOMPARE(m_Cuts->GetSegmentCount(), 9);
    QCOMPARE(updated.size(), 3);
}

void TestClassViews::drops_data()
{
    QTest::addColumn<QByteArray>("index");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("instances");
    QTest::addColumn<int>("results");
    QTest::newRow("cut") << QByteArray("2") << "" << 1 << 0;
    QTest::newRow("result") << QByteArray("7") << "" << 1 << 1;
    QTest::newRow("labelled") << QByteArray("3") << "Yes" << 1 << 0;
    QTest::newRow("labelled, no") << QByteArray("3") << "No" << 0 << 0;
    QTest::newRow("beyond") << QByteArray("9") << "" << 0 << 0;
    QTest::newRow("negative") << QByteArray("-1") << "" << 0 << 0;
    QTest::newRow("no number") << QByteArray("2x") << "" << 0 << 0;
    QTest::newRow("empty") << QByteArray("") << "" << 0 << 0;
}

void TestClassViews::drops()
{
    QFETCH(QByteArray, index);
    QFETCH(QString, answer);
    m_Bar->setCurrentIndex(1);
    const auto drop = [&](QMimeData& data) {
        data.setData(QStringLiteral("signal_start_end"), index);
        QDragEnterEvent enter(QPoint(50, 50), Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(tab(1), &enter);
        QDropEvent event(QPointF(50, 50), Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(tab(1), &event);
    };
    QSignalSpy updated(m_Tabs.get(), &LabeledDataTabWidget::SegmentsUpdated);
    QSignalSpy results(m_Tabs.get(), &LabeledDataTabWidget::NewResultsFound);
    ForeignData foreign;
    drop(foreign);
    QCOMPARE(label(1)->GetInstanceCount(), 0);

    ModalScript script;
    if (!answer.isEmpty())
        script.On<QMessageBox>([=](QMessageBox* box) { ClickButton(box, answer); });
    QMimeData data;
    drop(data);
    QTEST(label(1)->GetInstanceCount(), "instances");
    QCOMPARE(shown(tab(1)).first, label(1)->GetInstanceCount());
    QCOMPARE(shown(tab(0)).second, answer == QStringLiteral("Yes") ? 2 : 3);
    QTEST(results.size(), "results");
    // What is there already is left alone, without a question.
    const int updates = updated.size();
    QCOMPARE(updates > 0, label(1)->GetInstanceCount() == 1);
    if (updates > 0)
        drop(data);
    QCOMPARE(updated.size(), updates);
}

void TestClassViews::colors()
{
    for (int i = 2; i < 17; ++i)
        m_Tabs->AddGroup(QStringLiteral("Fly"));
    QCOMPARE(label(0)->GetColor(), QColor(Qt::red));
    QCOMPARE(label(1)->GetColor(), QColor(Qt::green));
    QCOMPARE(label(16)->GetColor(), label(0)->GetColor());
    LabelCollection other;
    m_Tabs->SetLabelCollection(&other);
    QCOMPARE(m_Bar->count(), 0);
    QCOMPARE(m_Tabs->AddGroup(QString())->GetColor(), QColor(Qt::red));
    m_Tabs->SetLabelCollection(nullptr);
    QVERIFY(!m_Tabs->AddGroup(QString()));
    for (const char* text : {"Add", "Edit", "Delete", "Stats", "Export"})
        QVERIFY(!FindButton(m_Tabs.get(), QLatin1String(text))->isEnabled());
}

void TestClassViews::names()
{
    ModalScript script;
    script.On<AddGroupDialog>([](AddGroupDialog* dialog) {
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Add Group"));
        QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("  "));
        QTest::keyClick(dialog, Qt::Key_Return);
        QVERIFY(dialog->isVisible());
        QCOMPARE(TakeUserErrors(),
                 QStringList(QStringLiteral(
                     "Error - Group Name: No name entered. Please enter a group name.")));
        QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("Run & hide"));
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    ClickButton(m_Tabs.get(), QStringLiteral("Add"));
    QCOMPARE(label(2)->GetName(), QStringLiteral("Run & hide"));
    QCOMPARE(m_Bar->currentIndex(), 2);

    script.On<AddGroupDialog>([](AddGroupDialog* dialog) {
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Edit Group"));
        QCOMPARE(dialog->GetName(), QStringLiteral("Run & hide"));
        // What was there is selected.
        QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("A & B"));
        ClickButton(dialog, QStringLiteral("Save Group"));
    });
    ClickButton(m_Tabs.get(), QStringLiteral("Edit"));
    QCOMPARE(label(2)->GetName(), QStringLiteral("A & B"));
    QCOMPARE(m_Bar->tabText(2), QStringLiteral("A && B"));
}

void TestClassViews::deleteGroup()
{
    const QPointer<BehaviorLabel> deleted(label(0));
    QSignalSpy updated(m_Tabs.get(), &LabeledDataTabWidget::SegmentsUpdated);
    ModalScript script;
    for (const char* answer : {"No", "Yes"}) {
        script.On<QMessageBox>([=](QMessageBox* box) {
            QCOMPARE(box->windowTitle(), QStringLiteral("Delete Group"));
            ClickButton(box, QLatin1String(answer));
        });
    }
    ClickButton(m_Tabs.get(), QStringLiteral("Delete"));
    QCOMPARE(m_Cuts->CountSegments(CutSegment::SEGMENT_LABELED), 3);
    ClickButton(m_Tabs.get(), QStringLiteral("Delete"));
    QCOMPARE(m_Cuts->CountSegments(CutSegment::SEGMENT_LABELED), 0);
    QCOMPARE(m_Cuts->GetSegmentCount(), 9);
    QCOMPARE(m_Bar->count(), 1);
    QCOMPARE(m_Labels->GetLabelCount(), 1);
    QCOMPARE(updated.size(), 1);
    // Other windows may show it.
    QVERIFY(deleted);
}

void TestClassViews::letsGoOfBehaviors_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("panelToo");
    for (const char* button : {"Edit", "Delete", "Move", "Move Labels", "Stats", "Export"}) {
        QTest::addRow("behaviour, %s", button) << button << false;
        QTest::addRow("recording, %s", button) << button << true;
    }
}

void TestClassViews::letsGoOfBehaviors()
{
    QFETCH(QString, button);
    QFETCH(bool, panelToo);
    ModalScript script;
    script.Then([=](QDialog* dialog) {
        if (panelToo)
            m_Tabs->SetLabelCollection(nullptr);
        else
            delete label(0);
        if (auto* box = qobject_cast<QMessageBox*>(dialog))
            box->button(QMessageBox::Yes)->click();
        else
            dialog->done(QDialog::Accepted);
    });
    table(tab(0))->selectAll();
    const QWidget* holder = m_Tabs.get();
    if (button.startsWith(QStringLiteral("Move")))
        holder = tab(0);
    ClickButton(holder, button);
    QCOMPARE(m_Cuts->CountSegments(CutSegment::SEGMENT_LABELED), 3);
    QCOMPARE(m_Bar->count(), panelToo ? 0 : 2);
    if (!panelToo)
        QCOMPARE(shown(tab(0)), qMakePair(0, 0));
    // The collection still lists what was deleted behind its back.
    if (!panelToo)
        m_Tabs->SetLabelCollection(nullptr);
}

void TestClassViews::statsAndExport()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("fly.txt"));
    ModalScript script;
    script.PickFile(path);
    ClickButton(m_Tabs.get(), QStringLiteral("Export"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().count("Fly"), 3);
    script.On<QInputDialog>([](QInputDialog* dialog) {
        dialog->findChild<QComboBox*>()->setCurrentIndex(1);
        dialog->accept();
    });
    QStringList fields;
    script.Then([&](QDialog* dialog) {
        for (const auto* field : dialog->findChildren<QLineEdit*>())
            fields.append(field->text());
        dialog->reject();
    });
    ClickButton(m_Tabs.get(), QStringLiteral("Stats"));
    // Three instances of the values 3 and 1 in turn.
    QCOMPARE(fields.join(QLatin1Char(' ')), QStringLiteral("Fly 3 3 1 2"));
}

void TestClassViews::smallGraphs()
{
    for (auto* chooser : tab(0)->findChildren<QComboBox*>())
        chooser->setCurrentIndex(chooser->findText(QStringLiteral("Small Graphs")));
    auto* graphs = tab(0)->findChild<LabelLineGraphWidget*>();
    QVERIFY(graphs->isVisible());
    QSignalSpy selected(m_Tabs.get(), &LabeledDataTabWidget::ShowSelected);
    const QRect second = graphs->visualRect(graphs->model()->index(1, 1));
    QVERIFY(graphs->visualRect(graphs->model()->index(0, 1)).right() < second.left());
    QTest::mouseClick(graphs->viewport(), Qt::LeftButton, {}, second.center());
    QCOMPARE(selected.value(0), (QVariantList{30, 40}));
}

QTEST_MAIN(TestClassViews)
#include "tst_classviews.moc"
