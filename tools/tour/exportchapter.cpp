#include "chapters.h"

#include "behaviorclassstatisticswidget.h"
#include "guide.h"
#include "labeleddatatabwidget.h"
#include "mainwindow.h"
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

namespace
{

void addMenuStep(Guide& guide, MainWindow& window, const QString& entry)
{
    guide.Step(QStringLiteral("Choose ") + entry, Guide::IsNothingOpen, [&guide, &window, entry] {
        guide.ChooseFromMenu(&window, {QStringLiteral("File"), entry});
    });
}

void addPathStep(Guide& guide, const QString& path, const QString& button)
{
    guide.Step(QStringLiteral("Give a path"), Guide::IsOpen<QFileDialog>,
               [&guide, path, button] { guide.PickFile(path, button); });
}

void addChoiceStep(Guide& guide, const QString& text, const QString& picture)
{
    guide.Step(QStringLiteral("Choose ") + text, Guide::IsOpen<QInputDialog>,
               [&guide, text, picture] {
                   auto* dialog = Guide::Window<QInputDialog>();
                   guide.Choose(dialog->findChild<QComboBox*>(), text);
                   guide.Picture(picture);
                   guide.Click(guide.Button(dialog, QStringLiteral("OK")));
               });
}

void addFileStep(Guide& guide, const QString& path)
{
    guide.Step(QStringLiteral("Find the file"), Guide::IsNothingOpen, [&guide, path] {
        guide.Expect(QFileInfo(path).size() > 0, QStringLiteral("there is no file ") + path);
    });
}

void addExportSteps(Guide& guide, MainWindow& window, const QString& folder)
{
    struct Export {
        const char* m_Format;
        const char* m_Path;
        const char* m_Result;
    };
    static constexpr Export exports[] = {
        {"Write Label Collection (Summary)", "summary.csv", "summary.csv"},
        {"Write Label Collection (Data - Seperate Files)", "", "glide/cut0.txt"},
        {"Write Label Collection (Data - Combined)", "", "glide.txt"},
        {"Write Data Aligned With Behaviors", "aligned.csv", "aligned.csv"},
    };
    for (const Export& each : exports) {
        const QString path = folder + QLatin1Char('/') + QLatin1String(each.m_Path);
        const bool toFolder = path.endsWith(QLatin1Char('/'));
        addMenuStep(guide, window, QStringLiteral("Export Label Summary"));
        addChoiceStep(guide, QLatin1String(each.m_Format), QStringLiteral("21-export-format"));
        addPathStep(guide, path, toFolder ? QStringLiteral("Choose") : QStringLiteral("Save"));
        if (&each == &exports[0])
            addChoiceStep(guide, QStringLiteral("TG_Presure"), QStringLiteral("22-attribute"));
        addFileStep(guide, folder + QLatin1Char('/') + QLatin1String(each.m_Result));
    }
}

void addStatisticsSteps(Guide& guide, MainWindow& window)
{
    guide.Step(QStringLiteral("Ask for statistics"), Guide::IsNothingOpen, [&] {
        guide.Click(
            guide.Button(window.findChild<LabeledDataTabWidget*>(), QStringLiteral("Stats")));
    });
    addChoiceStep(guide, QStringLiteral("TG_Presure"), QStringLiteral("22-attribute"));
    guide.Step(QStringLiteral("Look at the statistics"),
               Guide::IsOpen<BehaviorClassStatisticsWidget>, [&] {
                   auto* dialog = Guide::Window<BehaviorClassStatisticsWidget>();
                   const QString mean =
                       guide.Field<QLineEdit>(dialog, QStringLiteral("Mean Value:"))->text();
                   guide.Expect(mean.toDouble() != 0, QStringLiteral("the mean is ") + mean);
                   guide.Picture(QStringLiteral("23-statistics"));
                   guide.Click(guide.Button(dialog, QStringLiteral("Close")));
               });
}

} // namespace

void AddExportChapter(Guide& guide, MainWindow& window, const QString& folder)
{
    const QString project = folder + QStringLiteral("/labels.thm");
    addStatisticsSteps(guide, window);
    addMenuStep(guide, window, QStringLiteral("Export Project"));
    addPathStep(guide, project, QStringLiteral("Save"));
    addFileStep(guide, project);
    addExportSteps(guide, window, folder);
}

void AddReimportChapter(Guide& guide, MainWindow& window, const QString& folder)
{
    addMenuStep(guide, window, QStringLiteral("Import Project"));
    addPathStep(guide, folder + QStringLiteral("/labels.thm"), QStringLiteral("Open"));
    guide.Step(QStringLiteral("See the labels again"), Guide::IsNothingOpen, [&] {
        auto* tabs = window.findChild<LabeledDataTabWidget*>()->findChild<QTabWidget*>();
        guide.Expect(tabs->count() == 2 && tabs->tabText(1) == QStringLiteral("glide"),
                     QStringLiteral("the behaviours do not come back"));
        guide.Picture(QStringLiteral("24-imported"));
    });
}
