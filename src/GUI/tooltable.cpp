#include "tooltable.h"

#include "aboutdialog.h"
#include "axessettingsdialog.h"
#include "cutautomation.h"
#include "databasecontrolpanel.h"
#include "dataprocessor.h"
#include "datatabledialog.h"
#include "groundtruithcomparisionwidget.h"
#include "labeleddatatabwidget.h"
#include "mainwindow.h"
#include "mergelabelsdialog.h"
#include "nodestatswidget.h"
#include "resultwidget.h"
#include <QApplication>

namespace
{

using Tools = std::vector<Tool>;

QString text(const char* source)
{
    return QCoreApplication::translate("MainWindow", source);
}

template <class Receiver>
std::function<void()> call(Receiver* receiver, void (Receiver::*slot)())
{
    return [=] { (receiver->*slot)(); };
}

// A function that lives with the tool, on the recording that there is when it is run.
std::function<void()> with(MainWindow* window, RecordingFunction function)
{
    return [=] {
        if (window->GetRecording())
            function(window->GetRecording(), window);
    };
}

Tools fileTools(MainWindow* window)
{
    const QString menu = text("File");
    return {
        {menu, text("Open Data File"), "icons/Folder3.png", Tool::NOTHING, Tool::IN_MENU,
         call(window, &MainWindow::openFile), QKeySequence::Open},
        {menu, text("Save Data File"), "icons/Save.png", Tool::RECORDING, Tool::IN_MENU,
         call(window, &MainWindow::saveDataFile)},
        {menu, text("Import Project"), nullptr, Tool::RECORDING, Tool::IN_MENU,
         call(window, &MainWindow::importLabels)},
        {menu, text("Export Project"), nullptr, Tool::RECORDING, Tool::IN_MENU,
         call(window, &MainWindow::exportProject), QKeySequence::Save},
        {menu, text("Export Label Summary"), nullptr, Tool::RECORDING, Tool::ALWAYS_IN_MENU,
         call(window, &MainWindow::exportSummaryLabels)},
        {menu, text("Exit"), nullptr, Tool::NOTHING, Tool::IN_MENU, [] { QApplication::quit(); },
         QKeySequence::Quit},
    };
}

Tools visualizationTools(MainWindow* window)
{
    const QString menu = text("Visualization");
    return {
        {menu, text("Ground Truith Comparision"), nullptr, Tool::RECORDING, Tool::OUT_OF_MENU,
         with(window, ShowGroundTruith)},
        {menu, text("Show Labels"), nullptr, Tool::RECORDING, Tool::PALETTE_ONLY,
         [=] { window->hideShowLabeledData(true); }},
        {menu, text("Hide Labels"), nullptr, Tool::RECORDING, Tool::PALETTE_ONLY,
         [=] { window->hideShowLabeledData(false); }},
    };
}

Tools derivations(MainWindow* window)
{
    const QString menu = text("Tools/Derive Attributes");
    const char* icon = "icons/Tool2.png";
    Tools tools;
    for (int i = 0; i < DataProcessor::OperationCount; ++i)
        tools.push_back({menu,
                         DataProcessor::getOperationName(i),
                         icon,
                         Tool::RECORDING,
                         Tool::IN_MENU,
                         [=] { window->processAttribute(i); },
                         {},
                         i});
    const auto add = [&](const char* title, RecordingFunction derive) {
        tools.push_back(
            {menu, text(title), icon, Tool::RECORDING, Tool::PALETTE_ONLY, with(window, derive)});
    };
    add("Energy", DeriveBy<&DataProcessor::energy>);
    add("Threshold", DeriveBy<&DataProcessor::threshold>);
    add("Constant Value", DeriveBy<&DataProcessor::constantValue>);
    add("Rotate Vector", DeriveBy<&DataProcessor::rotate>);
    return tools;
}

Tools recordingTools(MainWindow* window)
{
    const QString menu = text("Tools");
    return {
        {menu, text("Add Template"), "icons/add.png", Tool::SELECTED_ROWS, Tool::IN_MENU,
         call(window, &MainWindow::addTemplateForm)},
        {menu, text("Merge Labels"), "icons/merge2.png", Tool::RECORDING, Tool::IN_MENU,
         with(window, RunMergeLabels)},
        {menu, text("Data Table"), "icons/Table.png", Tool::RECORDING, Tool::IN_MENU,
         with(window, ShowDataTable)},
        {menu, text("Data Statistics"), "icons/Stats2.png", Tool::RECORDING, Tool::PALETTE_ONLY,
         with(window, ShowDataStatistics)},
    };
}

Tools automaticCuts(MainWindow* window)
{
    // The first method does nothing.
    Tools tools;
    for (int i = 1; i < CutAutomation::MethodCount; ++i)
        tools.push_back({text("Tools/Automatic Cuts"),
                         CutAutomation::getMethodName(i),
                         "icons/cut.png",
                         Tool::RECORDING,
                         Tool::IN_MENU,
                         [=] { window->cutAutomationAttribute(i); },
                         {},
                         i});
    return tools;
}

Tools settings(MainWindow* window)
{
    const QString menu = text("Settings");
    return {
        {menu, text("Axes Settings"), "icons/Gear.png", Tool::RECORDING, Tool::IN_MENU,
         with(window, EditAxes)},
        {menu, text("Template Database"), "icons/Database.png", Tool::RECORDING, Tool::IN_MENU,
         with(window, ShowTemplateDatabase)},
    };
}

Tools help(MainWindow* window)
{
    const QString menu = text("Help");
    return {
        {menu, text("About"), "icons/Info.png", Tool::NOTHING, Tool::IN_MENU,
         call(window, &MainWindow::aboutDialog)},
        {menu, text("Online Help"), "icons/Computer.png", Tool::NOTHING, Tool::IN_MENU,
         call(window, &MainWindow::openHelp), QKeySequence::HelpContents},
    };
}

// What buttons, context menus and the graph's own keys do; the palette knows it, too.
Tools graphTools(MainWindow* window)
{
    const QString menu = text("Graph");
    const Tool::Place palette = Tool::PALETTE_ONLY;
    return {
        {menu, text("Cut Graph"), "icons/cut.png", Tool::SELECTED_SEGMENT, palette,
         call(window, &MainWindow::cutGraph)},
        {menu, text("Merge Graph"), "icons/merge.png", Tool::SELECTED_ROWS, palette,
         call(window, &MainWindow::mergeCuts)},
        {menu, text("Move To"), nullptr, Tool::SELECTED_SEGMENT, palette,
         call(window, &MainWindow::moveSegment)},
        {menu, text("Remove Label(s)"), nullptr, Tool::SELECTED_SEGMENT, palette,
         call(window, &MainWindow::deleteSegment)},
        {menu, text("Save Template"), nullptr, Tool::SELECTED_SEGMENT, palette,
         [=] { window->saveSegment(); }},
        {menu, text("Search Selection"), nullptr, Tool::SELECTED_SEGMENT, palette,
         call(window, &MainWindow::searchSegment)},
    };
}

Tools panelTools(ResultWidget* results, LabeledDataTabWidget* labels)
{
    const QString search = text("Search Tools");
    const QString result = text("Results");
    const QString behavior = text("Behaviors");
    const Tool::Place palette = Tool::PALETTE_ONLY;
    return {
        {search, text("Template Search"), "icons/wizard.png", Tool::RECORDING, palette,
         call(results, &ResultWidget::openTemplateSearch)},
        {search, text("Threshold"), "icons/threshold.png", Tool::RECORDING, palette,
         call(results, &ResultWidget::openThresholdSearch)},
        {search, text("Rule Association"), "icons/rule.png", Tool::RECORDING, palette,
         call(results, &ResultWidget::openRuleAssociationSearch)},
        {result, text("Move All"), nullptr, Tool::RECORDING, palette,
         call(results, &ResultWidget::moveAllResults)},
        {result, text("Remove All"), nullptr, Tool::RECORDING, palette,
         call(results, &ResultWidget::removeAllResults)},
        {behavior, text("Add"), "icons/add.png", Tool::RECORDING, palette,
         call(labels, &LabeledDataTabWidget::addNewGroup)},
        {behavior, text("Edit"), "icons/edit.png", Tool::BEHAVIOR, palette,
         call(labels, &LabeledDataTabWidget::editGroup)},
        {behavior, text("Delete"), "icons/trash.png", Tool::BEHAVIOR, palette,
         call(labels, &LabeledDataTabWidget::deleteGroup)},
        {behavior, text("Stats"), "icons/rule.png", Tool::BEHAVIOR, palette,
         call(labels, &LabeledDataTabWidget::statsGroup)},
        {behavior, text("Export"), "icons/export.png", Tool::BEHAVIOR, palette,
         call(labels, &LabeledDataTabWidget::exportGroup)},
    };
}

} // namespace

std::vector<Tool> MakeTools(const ToolPlaces& places)
{
    Tools all;
    for (const Tools& some :
         {fileTools(places.m_Window), visualizationTools(places.m_Window),
          derivations(places.m_Window), recordingTools(places.m_Window),
          automaticCuts(places.m_Window), settings(places.m_Window), help(places.m_Window),
          graphTools(places.m_Window), panelTools(places.m_Results, places.m_Labels)})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}
