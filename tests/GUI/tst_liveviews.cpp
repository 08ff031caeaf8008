#include "attributebox.h"
#include "attributesmenu.h"
#include "cuttablelineplotwidget.h"
#include "dataset.h"
#include "groundtruithcomparisionwidget.h"
#include "labeleddatatabwidget.h"
#include "lineplotwidget.h"
#include "mainwindow.h"
#include "modalscript.h"
#include "mousedrag.h"
#include "multiplelineplotwidget.h"
#include "overviewtimelinewidget.h"
#include "resultwidget.h"
#include "testdata.h"
#include "timeaxis.h"
#include <QAction>
#include <QMenu>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

using Change = std::function<void(LiveRecording&)>;
Q_DECLARE_METATYPE(Change)
using Act = std::function<void(MainWindow&, ModalScript&)>;
Q_DECLARE_METATYPE(Act)

namespace
{

// Counts the times that a widget is painted on the screen.
class PaintSpy : public QObject
{
public:
    explicit PaintSpy(QWidget* widget) { widget->installEventFilter(this); }
    int m_Count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_Count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

// What each view shows, as text; pictures by their checksum.
using Shown = QMap<QString, QString>;

QString picture(QWidget* widget)
{
    const QImage image = widget->grab().toImage();
    return QString::number(
        qChecksum(reinterpret_cast<const char*>(image.constBits()), uint(image.sizeInBytes())));
}

// The segments in the table of a panel, with their ends.
QString rows(const QWidget* panel)
{
    const QAbstractItemModel* model = panel->findChild<QTableView*>()->model();
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(model->index(row, 1).data(Qt::ToolTipRole).toString());
    return texts.join(QLatin1Char('\n'));
}

QString choices(const QWidget* widget)
{
    const auto* box = widget->findChild<AttributeBox*>();
    QStringList names{box->currentText()};
    for (int i = 0; i < box->count(); ++i)
        names.append(box->itemText(i));
    return names.join(QLatin1Char(' '));
}

template <class Window>
Window* findWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* window = qobject_cast<Window*>(widget))
            return window;
    }
    return nullptr;
}

NamedColumn column(const char* name, double value)
{
    return {QLatin1String(name), DataColumn(100, value)};
}

void addColumn(LiveRecording& recording, const char* name)
{
    std::vector<NamedColumn> columns;
    columns.push_back(column(name, 7));
    recording.GetColumns().Add(std::move(columns));
    recording.Tell(LiveRecording::ATTRIBUTES);
}

} // namespace

/// Every window that shows a recording, and what each kind of change makes of it.
class TestLiveViews : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void everyViewFollows_data();
    void everyViewFollows();
    void everyActionTellsOnce_data();
    void everyActionTellsOnce();

private:
    void openReference();
    Shown readViews() const;
    static CutSegment* segmentAt(LiveRecording& recording, int row);

    QTemporaryDir m_Folder;
    std::unique_ptr<MainWindow> m_Window;
    SharedRecording m_Recording;
};

// A label on rows 20 to 40, a result on rows 50 to 60, the first attribute on the graph.
void TestLiveViews::init()
{
    m_Recording =
        std::make_shared<LiveRecording>(MakeDataSet(QByteArray("-1 3\n2 1\n").repeated(50)));
    m_Recording->GetLabelling().Import({{QStringLiteral("walk"), {{20, 40}}}});
    m_Recording->GetCutCollection()->InsertCut(50, 60, CutSegment::SEGMENT_RESULT);
    m_Window = std::make_unique<MainWindow>();
    m_Window->SetRecording(m_Recording);
    m_Window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_Window.get()));
    auto* plot = m_Window->findChild<CuttableLinePlotWidget*>();
    plot->TogglePlot(0);
    plot->showContextMenu({30, 50});
    ChooseFromMenu(QStringLiteral("Open Plot"));
    plot->ClearSelection();
    openReference();
}

void TestLiveViews::openReference()
{
    QFile reference(m_Folder.filePath(QStringLiteral("reference.txt")));
    QVERIFY(reference.open(QIODevice::WriteOnly) && reference.write("walk,3,9\n") > 0);
    reference.close();
    ModalScript user;
    user.PickFile(reference.fileName());
    m_Window->showGroundTruith();
    QVERIFY(findWindow<GroundTruithComparisionWidget>());
}

void TestLiveViews::cleanup()
{
    m_Window.reset();
    QVERIFY(!findWindow<LinePlotWidget>() && !findWindow<GroundTruithComparisionWidget>());
    QCOMPARE(m_Recording.use_count(), 1L);
}

Shown TestLiveViews::readViews() const
{
    auto* results = m_Window->findChild<ResultWidget*>();
    auto* tabs = m_Window->findChild<QTabWidget*>();
    auto* reference = findWindow<GroundTruithComparisionWidget>();
    QStringList names;
    for (int i = 0; i < tabs->count(); ++i)
        names.append(tabs->tabText(i));
    QStringList menu;
    for (const QAction* entry : m_Window->findChild<AttributesMenu*>()->actions())
        menu.append(entry->text() + QString::number(entry->isChecked()));
    Shown shown{
        {QStringLiteral("graph"), picture(m_Window->findChild<CuttableLinePlotWidget*>())},
        {QStringLiteral("overview"), picture(m_Window->findChild<OverviewTimelineWidget*>())},
        {QStringLiteral("results"), rows(results)},
        {QStringLiteral("result boxes"), choices(results)},
        {QStringLiteral("tabs"), names.join(QLatin1Char(' '))},
        {QStringLiteral("reference"), picture(reference->findChild<CuttableLinePlotWidget*>())},
        {QStringLiteral("reference boxes"), choices(reference)},
        {QStringLiteral("segment window"), picture(findWindow<LinePlotWidget>())},
        {QStringLiteral("menu"), menu.join(QLatin1Char(' '))},
    };
    if (tabs->count() > 0) {
        shown.insert(QStringLiteral("labels"), rows(tabs->widget(0)));
        shown.insert(QStringLiteral("label boxes"), choices(tabs->widget(0)));
        shown.insert(QStringLiteral("label pictures"),
                     picture(tabs->widget(0)->findChild<QTableView*>()->viewport()));
    }
    return shown;
}

CutSegment* TestLiveViews::segmentAt(LiveRecording& recording, int row)
{
    int index = 0;
    return recording.GetCutCollection()->FindSegment(row, index);
}

void TestLiveViews::everyViewFollows_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QStringList>("changed");
    const auto add = [](const char* name, Change change, const char* changed) {
        QTest::newRow(name) << change
                            << QString::fromLatin1(changed).split(QStringLiteral(", "),
                                                                  Qt::SkipEmptyParts);
    };
    add(
        "cut",
        [](LiveRecording& recording) {
            recording.GetCutCollection()->InsertCut(70, CutSegment::SEGMENT_CUT);
            recording.TellSegments();
        },
        "graph, reference");
    add(
        "new result",
        [](LiveRecording& recording) {
            recording.GetCutCollection()->InsertCut(70, 80, CutSegment::SEGMENT_RESULT);
            recording.TellSegments();
        },
        "graph, reference, results");
    add(
        "rejected",
        [](LiveRecording& recording) {
            recording.GetLabelling().Reject({segmentAt(recording, 55)});
            recording.TellSegments();
        },
        "graph, reference, results");
    add(
        "label",
        [](LiveRecording& recording) {
            recording.GetLabelling().Label(segmentAt(recording, 55),
                                           *recording.GetLabelCollection()->GetLabel(0));
            recording.TellLabels();
        },
        "graph, label pictures, labels, overview, reference, results");
    add(
        "label without a signal",
        [](LiveRecording& recording) {
            recording.GetLabelling().Label(segmentAt(recording, 10),
                                           *recording.GetLabelCollection()->GetLabel(0),
                                           Labelling::TELL_NOBODY);
            recording.TellLabels();
        },
        "graph, label pictures, labels, overview, reference");
    add(
        "unlabelled",
        [](LiveRecording& recording) {
            recording.GetLabelling().Unlabel({segmentAt(recording, 30)}, Labelling::TELL_NOBODY);
            recording.TellLabels();
        },
        "graph, label pictures, labels, overview, reference");
    add(
        "moved ends",
        [](LiveRecording& recording) {
            recording.GetCutCollection()->MoveSegment(recording.GetDataSet(),
                                                      segmentAt(recording, 30), 25, 38);
            recording.TellLabels();
        },
        "graph, label pictures, labels, overview, reference");
    add(
        "new behaviour",
        [](LiveRecording& recording) {
            recording.GetLabelling().AddBehavior(QStringLiteral("fly"));
            recording.Tell(LiveRecording::LABELS);
        },
        "tabs");
    add(
        "renamed",
        [](LiveRecording& recording) {
            recording.GetLabelling().RenameBehavior(*recording.GetLabelCollection()->GetLabel(0),
                                                    QStringLiteral("run"));
            recording.Tell(LiveRecording::LABELS);
        },
        "tabs");
    add(
        "removed behaviour",
        [](LiveRecording& recording) {
            recording.GetLabelling().RemoveBehavior(*recording.GetLabelCollection()->GetLabel(0));
            recording.TellLabels();
        },
        "graph, label boxes, label pictures, labels, overview, reference, tabs");
    const char* all = "graph, label boxes, label pictures, menu, reference, reference boxes, "
                      "result boxes, segment window";
    add(
        "new attribute", [](LiveRecording& recording) { addColumn(recording, "C"); },
        "label boxes, menu, reference boxes, result boxes");
    add(
        "removed attribute",
        [](LiveRecording& recording) {
            recording.GetColumns().Remove({QStringLiteral("A")});
            recording.Tell(LiveRecording::ATTRIBUTES);
        },
        all);
    add(
        "removed and back elsewhere",
        [](LiveRecording& recording) {
            // The lines stay as they were.
            std::vector<NamedColumn> columns;
            columns.push_back(column("A", -1));
            for (int row = 1; row < 100; row += 2)
                columns.front().m_Values[row] = 2;
            recording.GetColumns().Replace(std::move(columns));
            recording.Tell(LiveRecording::ATTRIBUTES);
        },
        "label boxes, menu, reference boxes, result boxes");
    add(
        "computed anew",
        [](LiveRecording& recording) {
            std::vector<NamedColumn> columns;
            columns.push_back(column("A", 3));
            recording.GetColumns().Replace(std::move(columns));
            recording.Tell(LiveRecording::ATTRIBUTES);
        },
        all);
    add(
        "limits",
        [](LiveRecording& recording) {
            recording.GetDataSet()->SetAxisRanges({{0, {-5, 5}}});
            recording.Tell(LiveRecording::ATTRIBUTES);
        },
        "graph, label pictures, reference, segment window");
    add(
        "zero line",
        [](LiveRecording& recording) {
            recording.GetDataSet()->SetZeroLines({{0, true}});
            recording.Tell(LiveRecording::ATTRIBUTES);
        },
        "graph, reference");
    add(
        "limits of another",
        [](LiveRecording& recording) {
            recording.GetDataSet()->SetAxisRanges({{1, {-5, 5}}});
            recording.Tell(LiveRecording::ATTRIBUTES);
        },
        "");
}

void TestLiveViews::everyViewFollows()
{
    QFETCH(Change, change);
    QFETCH(QStringList, changed);
    const Shown before = readViews();
    QCoreApplication::processEvents();
    PaintSpy graph(m_Window->findChild<CuttableLinePlotWidget*>());
    PaintSpy overview(m_Window->findChild<OverviewTimelineWidget*>());
    change(*m_Recording);
    QCoreApplication::processEvents();
    // A picture taken of a widget is always new; what the user sees has to be painted for it.
    QVERIFY(graph.m_Count > 0 || !changed.contains(QStringLiteral("graph")));
    QVERIFY(overview.m_Count > 0 || !changed.contains(QStringLiteral("overview")));
    const Shown after = readViews();
    QStringList different;
    for (auto view = before.begin(); view != before.end(); ++view) {
        if (after.value(view.key()) != view.value())
            different.append(view.key());
    }
    QCOMPARE(different, changed);
}

void TestLiveViews::everyActionTellsOnce_data()
{
    using Window = MainWindow;
    QTest::addColumn<Act>("act");
    QTest::addColumn<QList<int>>("told"); // segments, labels, attributes
    const auto add = [](const char* name, Act act, const QList<int>& told) {
        QTest::newRow(name) << act << told;
    };
    const auto accept = [](QDialog* dialog) { dialog->accept(); };
    const auto selectRows = [](Window& window) {
        auto* plot = window.findChild<CuttableLinePlotWidget*>();
        DragMouse(*plot, {int(plot->GetTimeAxis()->ToX(15)), 50},
                  {int(plot->GetTimeAxis()->ToX(65)), 50});
    };
    const auto table = [](const Window& window, int panel) {
        return window.findChildren<QTableView*>().at(panel);
    };
    add("cut",
        [=](Window& window, ModalScript&) {
            selectRows(window);
            window.cutGraph();
        },
        {1, 0, 0});
    add("merge cuts",
        [=](Window& window, ModalScript&) {
            selectRows(window);
            window.mergeCuts();
        },
        {1, 1, 0});
    add("remove labels",
        [=](Window& window, ModalScript&) {
            selectRows(window);
            window.deleteSegment();
        },
        {1, 1, 0});
    add("reject result",
        [=](Window& window, ModalScript&) {
            table(window, 0)->selectAll();
            QTest::keyClick(table(window, 0), Qt::Key_Delete);
        },
        {1, 1, 0});
    add("move all results",
        [=](Window& window, ModalScript& user) {
            user.Then(accept);
            window.findChild<ResultWidget*>()->moveAllResults();
        },
        {1, 1, 0});
    add("remove all results",
        [=](Window& window, ModalScript&) {
            window.findChild<ResultWidget*>()->removeAllResults();
        },
        {1, 1, 0});
    add("reject label",
        [=](Window& window, ModalScript&) {
            table(window, 1)->selectAll();
            QTest::keyClick(table(window, 1), Qt::Key_Delete);
        },
        {1, 1, 0});
    add("add behaviour",
        [=](Window& window, ModalScript&) {
            window.findChild<LabeledDataTabWidget*>()->AddGroup(QStringLiteral("fly"));
        },
        {0, 1, 0});
    add("edit behaviour",
        [=](Window& window, ModalScript& user) {
            user.Then(accept);
            window.findChild<LabeledDataTabWidget*>()->editGroup();
        },
        {0, 1, 0});
    add("delete behaviour",
        [=](Window& window, ModalScript& user) {
            user.Then([](QDialog* dialog) { ClickButton(dialog, QStringLiteral("Yes")); });
            window.findChild<LabeledDataTabWidget*>()->deleteGroup();
        },
        {1, 1, 0});
    add("merge labels",
        [=](Window& window, ModalScript& user) {
            user.Then([](QDialog* dialog) {
                ClickButton(dialog, QStringLiteral("Compute"));
                dialog->reject();
            });
            window.mergeLabels();
        },
        {1, 1, 0});
    add("cut by itself",
        [=](Window& window, ModalScript& user) {
            user.Then(accept);
            window.cutAutomationAttribute(2);
        },
        {1, 0, 0});
    add("derive",
        [=](Window& window, ModalScript& user) {
            user.Then(accept);
            window.processAttribute(7);
        },
        {0, 0, 1});
    add("axes",
        [=](Window& window, ModalScript& user) {
            user.Then([](QDialog* dialog) { ClickButton(dialog, QStringLiteral("Save")); });
            window.axesSettings();
        },
        {0, 0, 1});
}

void TestLiveViews::everyActionTellsOnce()
{
    QFETCH(Act, act);
    QSignalSpy segments(m_Recording.get(), &LiveRecording::SegmentsChanged);
    QSignalSpy labels(m_Recording.get(), &LiveRecording::LabelsChanged);
    QSignalSpy attributes(m_Recording.get(), &LiveRecording::AttributesChanged);
    {
        ModalScript user;
        act(*m_Window, user);
    }
    QTEST(QList<int>({segments.size(), labels.size(), attributes.size()}), "told");
}

QTEST_MAIN(TestLiveViews)
#include "tst_liveviews.moc"
