#include "chapters.h"

#include "attributematchdialog.h"
#include "cuttablelineplotwidget.h"
#include "graphview.h"
#include "guide.h"
#include "labelsteps.h"
#include "mainwindow.h"
#include "matchoverlayplot.h"
#include "resultsearchoptiondialog.h"
#include "resultwidget.h"
#include "ruleassociationwizard.h"
#include "signalresamplingform.h"
#include "templatedialog.h"
#include "templatewizard.h"
#include "thresholdmap.h"
#include "thresholdwizard.h"
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QProgressDialog>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <functional>
#include <memory>

namespace
{

// Five wing beats in the middle of a flight.
constexpr int templateFrom = 4107;
constexpr int templateTo = 4131;
const QString templateName = QStringLiteral("wing beats");

ResultWidget* results(const MainWindow& window)
{
    return window.findChild<ResultWidget*>();
}

QTableView* resultTable(const MainWindow& window)
{
    return results(window)->findChild<QTableView*>();
}

int resultCount(const MainWindow& window)
{
    return resultTable(window)->model()->rowCount();
}

// The number in the label that reads prefix, number, suffix; -1 when there is none.
int numberIn(const QWidget* page, const QString& prefix)
{
    for (const QLabel* label : page->findChildren<QLabel*>()) {
        if (label->text().startsWith(prefix) && label->text() != prefix)
            return label->text().mid(prefix.size()).section(QLatin1Char(' '), 0, 0).toInt();
    }
    return -1;
}

int matchCount()
{
    auto* wizard = Guide::Window<TemplateWizard>();
    return wizard ? numberIn(wizard, QStringLiteral("Statistics: ")) : -1;
}

void clickEntry(Guide& guide, const QWidget* page, const QString& text)
{
    for (auto* list : page->findChildren<QListWidget*>()) {
        const QList<QListWidgetItem*> items = list->findItems(text, Qt::MatchExactly);
        if (!list->isVisible() || items.isEmpty())
            continue;
        guide.ClickAt(list->viewport(), list->visualItemRect(items.first()).center());
        return;
    }
    guide.Expect(false, QStringLiteral("no entry ") + text);
}

void clickNext(Guide& guide, QWidget* wizard)
{
    guide.Click(guide.Button(wizard, QStringLiteral("Next >")));
}

void addViewSteps(Guide& guide, MainWindow& window)
{
    for (const char* name : {"Acc_Z", "Acc_X"}) {
        guide.Step(QStringLiteral("Show ") + QLatin1String(name), Guide::IsNothingOpen,
                   [&guide, &window, name] {
                       guide.ChooseFromMenu(&window,
                                            {QStringLiteral("Visualization"),
                                             QStringLiteral("Attributes"), QLatin1String(name)});
                   });
    }
    guide.Step(QStringLiteral("Scroll to a flight"), [&] {
        QScrollBar* bar = GraphScrollBar(window);
        const int middle = RowPoint(window, templateFrom).x() - bar->pageStep() / 2;
        const int x = bar->width() * (middle + bar->pageStep() / 2) / Graph(window)->width();
        QTest::mouseClick(bar, Qt::MiddleButton, {}, QPoint(x, bar->height() / 2));
    });
    guide.Step(QStringLiteral("Select a few seconds of it"), [&] {
        guide.Drag(Graph(window), RowPoint(window, templateFrom - 60),
                   RowPoint(window, templateTo + 60));
        guide.OpenContextMenu(Graph(window), RowPoint(window, templateFrom));
        guide.ChooseFromContextMenu(QStringLiteral("Zoom On Region"));
    });
}

void addTemplateSteps(Guide& guide, MainWindow& window)
{
    guide.Step(QStringLiteral("Select five wing beats"), [&] {
        guide.Drag(Graph(window), RowPoint(window, templateFrom), RowPoint(window, templateTo));
        guide.OpenContextMenu(Graph(window), RowPoint(window, (templateFrom + templateTo) / 2));
        guide.Picture(QStringLiteral("30-template-menu"));
        guide.ChooseFromContextMenu(QStringLiteral("Save Template"));
    });
    guide.Step(QStringLiteral("Describe the template"), Guide::IsOpen<TemplateDialog>, [&] {
        auto* dialog = Guide::Window<TemplateDialog>();
        guide.TypeInto(guide.Field<QLineEdit>(dialog, QStringLiteral("Name ")), templateName);
        guide.TypeInto(guide.Field<QLineEdit>(dialog, QStringLiteral("Description ")),
                       QStringLiteral("Level flight, five beats"));
        for (const char* name : {"Acc_X", "Acc_Z"})
            guide.Click(guide.Button(dialog, QLatin1String(name)));
        guide.Picture(QStringLiteral("30-template-dialog"), dialog);
        guide.Click(guide.Button(dialog, QStringLiteral("Save")));
    });
    guide.Step(QStringLiteral("Give its speeds"), Guide::IsOpen<SignalResamplingForm>, [&] {
        auto* form = Guide::Window<SignalResamplingForm>();
        for (const char* label : {"Up Factor: ", "Down Factor: "})
            guide.TypeInto(guide.Field<QLineEdit>(form, QLatin1String(label)), QStringLiteral("1"));
        guide.Click(guide.Button(form, QStringLiteral("Add")));
        guide.Picture(QStringLiteral("30b-factors"), form);
        guide.Click(guide.Button(form, QStringLiteral("Done")));
    });
    guide.Step(QStringLiteral("Be told that it is stored"), Guide::IsOpen<QMessageBox>, [&] {
        guide.Click(guide.Button(Guide::Window<QMessageBox>(), QStringLiteral("OK")));
    });
}

// Presses a search button and chooses what to search.
void addSearchSteps(Guide& guide, MainWindow& window, const QString& button)
{
    guide.Step(QStringLiteral("Press ") + button, Guide::IsNothingOpen,
               [&guide, &window, button] { guide.Click(guide.Button(results(window), button)); });
    guide.Step(QStringLiteral("Search what has no label"), Guide::IsOpen<ResultSearchOptionDialog>,
               [&] {
                   auto* dialog = Guide::Window<ResultSearchOptionDialog>();
                   guide.Picture(QStringLiteral("31-search-option"), dialog);
                   guide.Click(guide.Button(dialog, QStringLiteral("Search Unlabeled Data")));
               });
}

void addPatternSteps(Guide& guide)
{
    guide.Step(QStringLiteral("Choose the pattern"), Guide::IsOpen<TemplateWizard>, [&] {
        auto* wizard = Guide::Window<TemplateWizard>();
        guide.Picture(QStringLiteral("31-welcome"), wizard);
        clickNext(guide, wizard);
        clickEntry(guide, wizard->currentPage(), QStringLiteral("Templates"));
        clickEntry(guide, wizard->currentPage(), templateName);
        guide.Click(guide.Button(wizard, QStringLiteral("Apply Pattern")));
        guide.Picture(QStringLiteral("31-patterns"), wizard);
        clickNext(guide, wizard);
    });
    guide.Step(QStringLiteral("Choose the algorithm"), Guide::IsOpen<QInputDialog>, [&] {
        auto* dialog = Guide::Window<QInputDialog>();
        guide.Choose(dialog->findChild<QComboBox*>(),
                     QStringLiteral("Normalized Correlation (Exact)"));
        guide.Picture(QStringLiteral("31-algorithm"), dialog);
        guide.Click(guide.Button(dialog, QStringLiteral("OK")));
    });
    guide.Step(QStringLiteral("Match the attributes"), Guide::IsOpen<AttributeMatchDialog>, [&] {
        auto* dialog = Guide::Window<AttributeMatchDialog>();
        guide.Picture(QStringLiteral("31-attributes"), dialog);
        guide.Click(guide.Button(dialog, QStringLiteral("Save")));
    });
}

void expectResults(Guide& guide, const MainWindow& window, int count)
{
    guide.Expect(resultCount(window) == count,
                 QStringLiteral("%1 results instead of %2").arg(resultCount(window)).arg(count));
}

// Finishes the wizard that is open and looks for as many results as it tells matches. Matches
// that cross a label become none.
void addTakeOverSteps(Guide& guide, MainWindow& window, const std::function<int()>& matches,
                      const QString& picture, bool mayCrossLabels = false)
{
    auto expected = std::make_shared<int>(0);
    guide.Step(
        QStringLiteral("Take the matches over"), [] { return !Guide::IsOpen<QMessageBox>(); },
        [=, &guide] {
            *expected = matches();
            guide.Expect(*expected > 0, QStringLiteral("there are no matches"));
            guide.Picture(picture, Guide::Window<QWizard>());
            guide.Click(guide.Button(Guide::Window<QWizard>(), QStringLiteral("Finish")));
        });
    guide.Step(QStringLiteral("See them as results"), Guide::IsNothingOpen, [=, &guide, &window] {
        const int count = resultCount(window);
        guide.Expect(count == *expected || (mayCrossLabels && count > 0 && count < *expected),
                     QStringLiteral("%1 matches give %2 results").arg(*expected).arg(count));
    });
}

void addFilterSteps(Guide& guide, MainWindow& window)
{
    guide.Step(
        QStringLiteral("Lower the threshold"),
        [] { return matchCount() > 0 && !Guide::IsOpen<QProgressDialog>(); },
        [&] {
            auto* wizard = Guide::Window<TemplateWizard>();
            const int before = matchCount();
            QTest::keyClick(wizard->findChild<QSlider*>(), Qt::Key_PageDown);
            guide.Expect(matchCount() > before, QStringLiteral("a lower threshold finds no more"));
            guide.Picture(QStringLiteral("31-result-filter"), wizard);
        });
    guide.Step(QStringLiteral("Reject the take-off on the map"), [&] {
        auto* map = Guide::Window<TemplateWizard>()->findChild<ThresholdMap*>();
        const int before = matchCount();
        const auto place = [map](int row) {
            constexpr int gutter = 40;
            constexpr int rows = 45000;
            return QPoint(gutter + row * (map->width() - gutter) / rows, map->height() / 2);
        };
        guide.Drag(map, place(2800), place(3400));
        guide.Expect(matchCount() < before, QStringLiteral("the map rejects nothing"));
    });
    guide.Step(QStringLiteral("Reject the highest peaks in the overlay"), [&] {
        auto* overlay = Guide::Window<TemplateWizard>()->findChildren<MatchOverlayPlot*>().last();
        const int before = matchCount();
        guide.Drag(overlay, QPoint(45, 10),
                   QPoint(overlay->width() - 8, overlay->height() * 23 / 100));
        guide.Expect(matchCount() < before, QStringLiteral("the overlay rejects nothing"));
    });
    guide.Step(QStringLiteral("Confirm it"), Guide::IsOpen<QMessageBox>, [&] {
        guide.Picture(QStringLiteral("31-reject"));
        guide.Click(guide.Button(Guide::Window<QMessageBox>(), QStringLiteral("Yes")));
    });
    addTakeOverSteps(guide, window, matchCount, QStringLiteral("31-rejected"), true);
}

// Moves all results into a behaviour.
void addMoveAllSteps(Guide& guide, MainWindow& window, const QString& behavior)
{
    guide.Step(QStringLiteral("Move all results"), Guide::IsNothingOpen,
               [&] { guide.Click(guide.Button(results(window), QStringLiteral("Move All"))); });
    AddBehaviorChoiceStep(guide, behavior);
    guide.Step(QStringLiteral("See none left"), Guide::IsNothingOpen,
               [&] { expectResults(guide, window, 0); });
}

void addMoveSteps(Guide& guide, MainWindow& window)
{
    auto left = std::make_shared<int>(0);
    guide.Step(QStringLiteral("Select two results"), Guide::IsNothingOpen, [=, &guide, &window] {
        QTableView* table = resultTable(window);
        for (const int row : {0, 2})
            guide.ClickAt(table->viewport(),
                          table->visualRect(table->model()->index(row, 1)).center(),
                          row == 0 ? Qt::NoModifier : Qt::ControlModifier);
        guide.Picture(QStringLiteral("32-results"));
        *left = resultCount(window) - 2;
        guide.Click(guide.Button(results(window), QStringLiteral("Move Selected")));
    });
    AddBehaviorChoiceStep(guide, QStringLiteral("fly"));
    guide.Step(QStringLiteral("See them gone"), Guide::IsNothingOpen,
               [=, &guide, &window] { expectResults(guide, window, *left); });
    addMoveAllSteps(guide, window, QStringLiteral("fly"));
}

void addThresholdSteps(Guide& guide, MainWindow& window)
{
    addSearchSteps(guide, window, QStringLiteral("Threshold"));
    guide.Step(QStringLiteral("Ask for what lies below the surface"),
               Guide::IsOpen<ThresholdWizard>, [&] {
                   auto* wizard = Guide::Window<ThresholdWizard>();
                   guide.Picture(QStringLiteral("33-welcome"), wizard);
                   clickNext(guide, wizard);
                   guide.Click(guide.Button(wizard, QStringLiteral("Add Parameter")));
                   guide.Choose(guide.Field<QComboBox>(wizard, QStringLiteral("Parameter")),
                                QStringLiteral("attribute > value"));
                   auto* attributes = wizard->findChildren<QComboBox*>().at(1);
                   guide.Choose(attributes, QStringLiteral("TG_Presure"));
                   guide.TypeInto(wizard->findChild<QDoubleSpinBox*>(), QStringLiteral("1.5"));
                   guide.TypeInto(guide.Field<QSpinBox>(wizard, QStringLiteral("Minimum Length")),
                                  QStringLiteral("250"));
                   guide.Click(guide.Button(wizard, QStringLiteral("Extract Results")));
               });
    auto matches = std::make_shared<int>(0);
    guide.Step(
        QStringLiteral("See the dives over each other"),
        [] { return !Guide::IsOpen<QProgressDialog>(); },
        [&guide, matches] {
            auto* wizard = Guide::Window<ThresholdWizard>();
            guide.Choose(guide.Field<QComboBox>(wizard, QStringLiteral("Data Attribute: ")),
                         QStringLiteral("TG_Presure"));
            guide.Picture(QStringLiteral("33-threshold"), wizard);
            *matches = numberIn(wizard, QStringLiteral("Number matches: "));
            clickNext(guide, wizard);
        });
    addTakeOverSteps(
        guide, window, [matches] { return *matches; }, QStringLiteral("33-finish"));
    guide.Step(QStringLiteral("See the dives"), Guide::IsNothingOpen,
               [&] { guide.Picture(QStringLiteral("33-results")); });
}

void addRuleSteps(Guide& guide, MainWindow& window)
{
    addSearchSteps(guide, window, QStringLiteral("Rule Association"));
    guide.Step(QStringLiteral("Ask for what follows a dive"), Guide::IsOpen<RuleAssociationWizard>,
               [&] {
                   auto* wizard = Guide::Window<RuleAssociationWizard>();
                   guide.Picture(QStringLiteral("34-welcome"), wizard);
                   clickNext(guide, wizard);
                   guide.Click(guide.Button(wizard, QStringLiteral("Add New")));
                   guide.Choose(guide.Field<QComboBox>(wizard, QStringLiteral("Label")),
                                QStringLiteral("dive"));
                   guide.TypeInto(wizard->findChild<QSpinBox*>(), QStringLiteral("300"));
                   guide.Click(guide.Button(wizard, QStringLiteral("Extract Results")));
               });
    auto matches = std::make_shared<int>(0);
    guide.Step(
        QStringLiteral("Go on to the ends"), [] { return !Guide::IsOpen<QProgressDialog>(); },
        [&guide, matches] {
            auto* wizard = Guide::Window<RuleAssociationWizard>();
            guide.Picture(QStringLiteral("34-rule"), wizard);
            *matches = numberIn(wizard, QStringLiteral("Number matches: "));
            clickNext(guide, wizard);
        });
    addTakeOverSteps(
        guide, window, [matches] { return *matches; }, QStringLiteral("35-resize-results"));
    guide.Step(QStringLiteral("See what follows the dives"), Guide::IsNothingOpen,
               [&] { guide.Picture(QStringLiteral("36-rule-results")); });
}

} // namespace

void AddSearchChapter(Guide& guide, MainWindow& window)
{
    addViewSteps(guide, window);
    addTemplateSteps(guide, window);
    addSearchSteps(guide, window, QStringLiteral("Template Search"));
    addPatternSteps(guide);
    addFilterSteps(guide, window);
    addMoveSteps(guide, window);
    addThresholdSteps(guide, window);
    AddGroupSteps(guide, window, QStringLiteral("dive"), QStringLiteral("33-dive"));
    addMoveAllSteps(guide, window, QStringLiteral("dive"));
    addRuleSteps(guide, window);
}
