#include "chapters.h"

#include "axessettingsdialog.h"
#include "cuttablelineplotwidget.h"
#include "datatabledialog.h"
#include "graphview.h"
#include "guide.h"
#include "mainwindow.h"
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>

namespace
{

int inkedPixels(QWidget* widget, const QRect& area)
{
    constexpr int dark = 128;
    const QImage image = widget->grab(area).toImage();
    int inked = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            inked += qGray(image.pixel(x, y)) < dark;
    }
    return inked;
}

void addAttributeSteps(Guide& guide, MainWindow& window)
{
    int plots = 0;
    for (const char* name : {"Acc_X", "Acc_Z", "TG_Presure"}) {
        ++plots;
        const QString attribute = QLatin1String(name);
        guide.Step(
            QStringLiteral("Show ") + attribute, Guide::IsNothingOpen,
            [&guide, &window, attribute, plots] {
                guide.ChooseFromMenu(
                    &window,
                    {QStringLiteral("Visualization"), QStringLiteral("Attributes"), attribute},
                    [&guide, plots] {
                        if (plots == 1)
                            guide.Picture(QStringLiteral("05b-attributes-menu"));
                    });
                guide.Expect(Graph(window)->GetPlotCount() == plots,
                             QStringLiteral("the graph does not show ") + attribute);
            });
    }
    guide.Step(QStringLiteral("See the whole recording"), [&] {
        guide.Picture(QStringLiteral("06-attributes"));
        constexpr int leastInk = 2000;
        guide.Expect(inkedPixels(Graph(window), Graph(window)->rect()) > leastInk,
                     QStringLiteral("the graph is empty"));
    });
}

void addZoomSteps(Guide& guide, MainWindow& window)
{
    guide.Step(QStringLiteral("Zoom in"), [&] {
        const int width = Graph(window)->width();
        for (int i = 0; i < 11; ++i)
            guide.Click(guide.Button(&window, QStringLiteral("Zoom In")));
        guide.Expect(Graph(window)->width() > 10 * width,
                     QStringLiteral("the graph does not grow with the zoom"));
        guide.Picture(QStringLiteral("06b-zoomed"));
    });
    guide.Step(QStringLiteral("Scroll with the bar"), [&] {
        QScrollBar* bar = GraphScrollBar(window);
        guide.ClickAt(bar, QPoint(bar->width() * 3 / 5, bar->height() / 2));
        guide.Expect(bar->value() > 0, QStringLiteral("the graph does not scroll"));
        guide.Picture(QStringLiteral("07-zoomed"));
    });
}

void addSelectionSteps(Guide& guide, MainWindow& window)
{
    guide.Step(QStringLiteral("Drag a selection"), [&] {
        guide.Drag(Graph(window), VisiblePoint(window, 300), VisiblePoint(window, 520));
        guide.Expect(!Graph(window)->GetSelectedRange().value_or(RowSpan()).IsEmpty(),
                     QStringLiteral("nothing is selected"));
        guide.Picture(QStringLiteral("08-selection"));
    });
    guide.Step(QStringLiteral("Cut it out with the C key"), [&] {
        const QRect edge(VisiblePoint(window, 299).x(), 0, 3, Graph(window)->height());
        QTest::keyClick(Graph(window), Qt::Key_C);
        guide.Expect(!Graph(window)->GetSelectedRange(), QStringLiteral("the cut is not made"));
        // The outline is drawn at an opacity that leaves it gray: compare with a column beside.
        const auto gray = [&](int x) {
            return qGray(
                Graph(window)->grab(QRect(x, edge.height() - 40, 1, 1)).toImage().pixel(0, 0));
        };
        guide.Expect(std::min({gray(edge.left()), gray(edge.left() + 1), gray(edge.left() + 2)}) <
                         gray(edge.left() + 60),
                     QStringLiteral("the cut does not show"));
        guide.Picture(QStringLiteral("09-cut"));
    });
    guide.Step(QStringLiteral("Select again for a closer look"), [&] {
        guide.Drag(Graph(window), VisiblePoint(window, 350), VisiblePoint(window, 450));
        const QPoint inside = VisiblePoint(window, 400);
        emit Graph(window)->customContextMenuRequested(inside);
    });
    guide.Step(
        QStringLiteral("Zoom on the region"), [] { return Guide::Window<QMenu>() != nullptr; },
        [&] {
            auto* menu = Guide::Window<QMenu>();
            const int width = Graph(window)->width();
            guide.Picture(QStringLiteral("09b-region-menu"));
            guide.ClickAt(menu, menu->actionGeometry(menu->actions().first()).center());
            guide.Expect(Graph(window)->width() > 2 * width,
                         QStringLiteral("the region is not zoomed on"));
            QTest::qWait(100);
            guide.Picture(QStringLiteral("09c-region"));
        });
}

void addDialogSteps(Guide& guide, MainWindow& window)
{
    guide.Step(QStringLiteral("Open the axes settings"), [&] {
        guide.ChooseFromMenu(&window,
                             {QStringLiteral("Settings"), QStringLiteral("Axes Settings")});
    });
    guide.Step(
        QStringLiteral("Give the attribute a baseline"),
        [] { return Guide::Window<AxesSettingsDialog>() != nullptr; },
        [&] {
            auto* dialog = Guide::Window<AxesSettingsDialog>();
            guide.Click(dialog->findChild<QCheckBox*>());
            guide.Picture(QStringLiteral("10-axes-settings"));
            guide.Click(guide.Button(dialog, QStringLiteral("Save")));
        });
    guide.Step(
        QStringLiteral("Open the data table"), [] { return !Guide::Window<AxesSettingsDialog>(); },
        [&] {
            guide.ChooseFromMenu(&window, {QStringLiteral("Tools"), QStringLiteral("Data Table")});
        });
    guide.Step(
        QStringLiteral("Turn its pages"),
        [] { return Guide::Window<DataTableDialog>() != nullptr; },
        [&] {
            auto* dialog = Guide::Window<DataTableDialog>();
            const auto* table = dialog->findChild<QTableWidget*>();
            const QString first = table->item(0, 0)->text();
            guide.Click(guide.Button(dialog, QStringLiteral("Next")));
            guide.Expect(table->item(0, 0)->text() != first,
                         QStringLiteral("the page does not turn"));
            guide.Picture(QStringLiteral("11-data-table"));
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
    guide.Step(
        QStringLiteral("Be back at the graph"), [] { return !Guide::Window<DataTableDialog>(); },
        [&] { guide.Picture(QStringLiteral("12-end")); });
}

} // namespace

void AddGraphChapter(Guide& guide, MainWindow& window)
{
    addAttributeSteps(guide, window);
    addZoomSteps(guide, window);
    addSelectionSteps(guide, window);
    addDialogSteps(guide, window);
}
