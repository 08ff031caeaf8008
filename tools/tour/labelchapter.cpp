#include "chapters.h"

#include "classwidget.h"
#include "cuttablelineplotwidget.h"
#include "graphview.h"
#include "guide.h"
#include "labelsteps.h"
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

QTableView* labelTable(const MainWindow& window, int tab)
{
    return BehaviorTabs(window)->widget(tab)->findChild<QTableView*>();
}

void expectLabels(Guide& guide, const MainWindow& window, int tab, int count)
{
    const int rows = labelTable(window, tab)->model()->rowCount();
    guide.Expect(
        rows == count,
        QStringLiteral("tab %1 has %2 labels instead of %3").arg(tab).arg(rows).arg(count));
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
    AddBehaviorChoiceStep(guide, QStringLiteral("fly"));
    guide.Step(QStringLiteral("See it labelled"), Guide::IsNothingOpen, [&] {
        guide.Picture(QStringLiteral("17-labelled"));
        expectLabels(guide, window, 0, 1);
    });
    for (const int x : {700, 850}) {
        guide.Step(QStringLiteral("Drag a segment onto a tab"), [&guide, &window, x] {
            guide.DragAndDrop(Graph(window), VisiblePoint(window, x),
                              BehaviorTabs(window)->currentWidget());
        });
    }
    guide.Step(QStringLiteral("See them in the tab"), [&] {
        expectLabels(guide, window, BehaviorTabs(window)->currentIndex(), 2);
        guide.Picture(QStringLiteral("18-class-table"));
    });
}

void addResizeSteps(Guide& guide, MainWindow& window)
{
    guide.Step(QStringLiteral("Ask for the menu of a label"), [&] {
        QTableView* table = labelTable(window, BehaviorTabs(window)->currentIndex());
        guide.OpenContextMenu(table->viewport(),
                              table->visualRect(table->model()->index(0, 1)).center());
        guide.Picture(QStringLiteral("18b-label-menu"));
        guide.ChooseFromContextMenu(QStringLiteral("Resize Segment"));
    });
    guide.Step(QStringLiteral("Move its end"), Guide::IsOpen<SegmentResizeDialog>, [&] {
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
        QStringLiteral("Merge labels"), [] { return !Guide::IsOpen<SegmentResizeDialog>(); },
        [&] {
            guide.ChooseFromMenu(&window,
                                 {QStringLiteral("Tools"), QStringLiteral("Merge Labels")});
        });
    guide.Step(QStringLiteral("Try two distances"), Guide::IsOpen<MergeLabelsDialog>, [&] {
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
    AddGroupSteps(guide, window, QStringLiteral("fly"), QStringLiteral("13-add-group"));
    AddGroupSteps(guide, window, QStringLiteral("glide"), QStringLiteral("13-add-group"));
    addCutStep(guide, window, 200, 350);
    addCutStep(guide, window, 640, 760);
    addCutStep(guide, window, 800, 950);
    addLabelSteps(guide, window);
    addResizeSteps(guide, window);
    addMergeSteps(guide, window);
}
