#include "chapters.h"

#include "addgroupdialog.h"
#include "behaviorselectiondialog.h"
#include "classwidget.h"
#include "cuttablelineplotwidget.h"
#include "graphview.h"
#include "guide.h"
#include "labeleddatatabwidget.h"
#include "mainwindow.h"
#include "mergelabelsdialog.h"
#include "segmentresizedialog.h"
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

namespace
{

QTabWidget* tabs(const MainWindow& window)
{
    return window.findChild<LabeledDataTabWidget*>()->findChild<QTabWidget*>();
}

QTableView* labelTable(const MainWindow& window, int tab)
{
    return tabs(window)->widget(tab)->findChild<QTableView*>();
}

void expectLabels(Guide& guide, const MainWindow& window, int tab, int count)
{
    const int rows = labelTable(window, tab)->model()->rowCount();
    guide.Expect(
        rows == count,
        QStringLiteral("tab %1 has %2 labels instead of %3").arg(tab).arg(rows).arg(count));
}

template <class T>
bool isOpen()
{
    return Guide::Window<T>() != nullptr;
}

void addGroupSteps(Guide& guide, MainWindow& window, const QString& name, const QString& picture)
{
    guide.Step(
        QStringLiteral("Add a behaviour"), [] { return !QApplication::activeModalWidget(); },
        [&] {
            guide.Click(
                guide.Button(window.findChild<LabeledDataTabWidget*>(), QStringLiteral("Add")));
        });
    guide.Step(QStringLiteral("Call it ") + name, isOpen<AddGroupDialog>, [&guide, name, picture] {
        auto* dialog = Guide::Window<AddGroupDialog>();
        guide.TypeInto(guide.Field<QLineEdit>(dialog, QStringLiteral("Group Name")), name);
        guide.Picture(picture);
        guide.Click(guide.Button(dialog, QStringLiteral("Save Group")));
    });
    guide.Step(
        QStringLiteral("See its tab"), [] { return !isOpen<AddGroupDialog>(); },
        [&guide, &window, name] {
            guide.Expect(tabs(window)->tabText(tabs(window)->count() - 1) == name,
                         QStringLiteral("there is no tab ") + name);
        });
}

void addCutStep(Guide& guide, MainWindow& window, int from, int to)
{
    guide.Step(QStringLiteral("Cut a stretch out"), [&guide, &window, from, to] {
        guide.Drag(Graph(window), VisiblePoint(window, from), VisiblePoint(window, to));
        QTest::keyClick(Graph(window), Qt::Key_C);
    });
}

void addLabelSteps(Guide& guide, MainWindow& window)
{
    guide.Step(QStringLiteral("Ask for the menu of a segment"), [&] {
        guide.Picture(QStringLiteral("15-behaviours"));
        guide.OpenContextMenu(Graph(window), VisiblePoint(window, 250));
        guide.Picture(QStringLiteral("16-segment-menu"));
        guide.ChooseFromContextMenu(QStringLiteral("Move To"));
    });
    guide.Step(QStringLiteral("Choose its behaviour"), isOpen<BehaviorSelectionDialog>, [&] {
        auto* dialog = Guide::Window<BehaviorSelectionDialog>();
        guide.Choose(guide.Field<QComboBox>(dialog, QStringLiteral("Behavior")),
                     QStringLiteral("fly"));
        guide.Click(guide.Button(dialog, QStringLiteral("Save")));
    });
    guide.Step(
        QStringLiteral("See it labelled"), [] { return !isOpen<BehaviorSelectionDialog>(); },
        [&] {
            guide.Picture(QStringLiteral("17-labelled"));
            expectLabels(guide, window, 0, 1);
        });
    for (const int x : {700, 850}) {
        guide.Step(QStringLiteral("Drag a segment onto a tab"), [&guide, &window, x] {
            guide.DragAndDrop(Graph(window), VisiblePoint(window, x),
                              tabs(window)->currentWidget());
        });
    }
    guide.Step(QStringLiteral("See them in the tab"), [&] {
        expectLabels(guide, window, tabs(window)->currentIndex(), 2);
        guide.Picture(QStringLiteral("18-class-table"));
    });
}

void addResizeSteps(Guide& guide, MainWindow& window)
{
    guide.Step(QStringLiteral("Ask for the menu of a label"), [&] {
        QTableView* table = labelTable(window, tabs(window)->currentIndex());
        guide.OpenContextMenu(table->viewport(),
                              table->visualRect(table->model()->index(0, 1)).center());
        guide.Picture(QStringLiteral("18b-label-menu"));
        guide.ChooseFromContextMenu(QStringLiteral("Resize Segment"));
    });
    guide.Step(QStringLiteral("Move its end"), isOpen<SegmentResizeDialog>, [&] {
        auto* dialog = Guide::Window<SegmentResizeDialog>();
        auto* end = dialog->findChildren<QSpinBox*>().value(1);
        const int before = end->value();
        guide.TypeInto(end, QString::number(before + 10));
        QTest::keyClick(end, Qt::Key_Tab);
        guide.Picture(QStringLiteral("19-resize"));
        guide.Click(guide.Button(dialog, QStringLiteral("Save")));
    });
}

void addMergeSteps(Guide& guide, MainWindow& window)
{
    guide.Step(
        QStringLiteral("Merge labels"), [] { return !isOpen<SegmentResizeDialog>(); },
        [&] {
            guide.ChooseFromMenu(&window,
                                 {QStringLiteral("Tools"), QStringLiteral("Merge Labels")});
        });
    guide.Step(QStringLiteral("Try two distances"), isOpen<MergeLabelsDialog>, [&] {
        auto* dialog = Guide::Window<MergeLabelsDialog>();
        QImage pictures[2];
        int next = 0;
        for (const char* distance : {"500", "0"}) {
            guide.TypeInto(
                guide.Field<QSpinBox>(dialog, QStringLiteral("Merge Distance (Time steps)")),
                QLatin1String(distance));
            guide.Click(guide.Button(dialog, QStringLiteral("Compute")));
            guide.Picture(QStringLiteral("20-merge-labels"));
            pictures[next++] =
                Graph(window)->grab(Graph(window)->visibleRegion().boundingRect()).toImage();
        }
        guide.Expect(pictures[0] != pictures[1],
                     QStringLiteral("the distance makes no difference"));
        guide.Click(guide.Button(dialog, QStringLiteral("Cancel")));
    });
}

} // namespace

void AddLabelChapter(Guide& guide, MainWindow& window)
{
    addGroupSteps(guide, window, QStringLiteral("fly"), QStringLiteral("13-add-group"));
    addGroupSteps(guide, window, QStringLiteral("glide"), QStringLiteral("13-add-group"));
    addCutStep(guide, window, 200, 350);
    addCutStep(guide, window, 640, 760);
    addCutStep(guide, window, 800, 950);
    addLabelSteps(guide, window);
    addResizeSteps(guide, window);
    addMergeSteps(guide, window);
}
