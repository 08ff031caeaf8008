#include "mainwindow.h"

#include "aboutdialog.h"
#include "applicationinfo.h"
#include "attributesmenu.h"
#include "axessettingsdialog.h"
#include "cutautomation.h"
#include "cuttablelineplotwidget.h"
#include "databasecontrolpanel.h"
#include "dataprocessor.h"
#include "dataset.h"
#include "datatabledialog.h"
#include "fileimportwizard.h"
#include "graphtoolbar.h"
#include "groundtruithbehaviorcollection.h"
#include "groundtruithcomparisionwidget.h"
#include "intmappedaction.h"
#include "labelbackup.h"
#include "labeleddatatabwidget.h"
#include "mergelabelsdialog.h"
#include "overviewtimelinewidget.h"
#include "patternsdataobject.h"
#include "plotnavigator.h"
#include "recording.h"
#include "recordingfiles.h"
#include "resourcepath.h"
#include "resultwidget.h"
#include "segmenteditor.h"
#include "settingsfolder.h"
#include "surveyresultwriter.h"
#include "usererror.h"
#include "zoomwidget.h"
#include <QApplication>
#include <QDesktopServices>
#include <QMenuBar>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QUrl>
#include <QVBoxLayout>

/// One entry of a menu, from left to right as users and this program see it.
struct MainWindow::MenuRow {
    QAction* MainWindow::*m_Action;
    const char* m_Title;
    const char* m_Icon;
    void (MainWindow::*m_Slot)();
    bool m_NeedsData;
    // Some tools are complete, but left out of the menus on purpose.
    bool m_IsShown = true;
    QKeySequence::StandardKey m_Shortcut = QKeySequence::UnknownKey;
};

namespace
{

QIcon loadIcon(const char* name)
{
    return name ? QIcon(ResourcePath(QLatin1String(name))) : QIcon();
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent), m_OverviewTimeline(new OverviewTimelineWidget),
      m_LinePlot(new CuttableLinePlotWidget), m_ZoomWidget(new ZoomWidget),
      m_ScrollArea(new QScrollArea), m_ResultWidget(new ResultWidget),
      m_LabeledDataTabWidget(new LabeledDataTabWidget),
      m_Navigator(
          new PlotNavigator(m_ScrollArea, m_LinePlot, m_OverviewTimeline, m_ZoomWidget, this)),
      m_SegmentEditor(
          std::make_unique<SegmentEditor>(this, m_LinePlot, m_OverviewTimeline, m_ResultWidget)),
      m_Files(std::make_unique<RecordingFiles>(this)),
      m_SurveyResultWriter(std::make_unique<SurveyResultWriter>()),
      m_LabelBackup(std::make_unique<LabelBackup>(SettingsFolder() + QStringLiteral("backup")))
{
    resize(1100, 800);
    setWindowTitle(ApplicationTitle());
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(makeGraphPane());
    splitter->addWidget(makeLabelPane());
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 2);
    splitter->setChildrenCollapsible(false);
    // The graph is what users look at most.
    splitter->setSizes({420, 320});
    setCentralWidget(splitter);
    connect(splitter, &QSplitter::splitterMoved, this, &MainWindow::resizeLinePlotWidget);
    connectGraph();
    connectLabelPane();
    buildMenus();
    buildToolBar();
    m_SurveyResultWriter->Start();
    connect(m_ResultWidget, &ResultWidget::MoveResults, m_SurveyResultWriter.get(),
            qOverload<const QString&>(&SurveyResultWriter::WriteLabels));
    enableActions();
}

MainWindow::~MainWindow()
{
    // The views outlive the recording by a little.
    clearGraph();
    showRecording(nullptr);
}

QWidget* MainWindow::makeGraphPane()
{
    m_ScrollArea->setMinimumHeight(180);
    m_ScrollArea->setWidget(m_LinePlot);
    m_OverviewTimeline->setFixedHeight(10);
    m_OverviewTimeline->setMinimumWidth(10);
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->addWidget(m_ScrollArea);
    layout->addWidget(m_OverviewTimeline);
    return pane;
}

QWidget* MainWindow::makeLabelPane()
{
    auto* pane = new QWidget;
    auto* layout = new QHBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_ResultWidget, 1);
    layout->addWidget(m_LabeledDataTabWidget, 1);
    return pane;
}

void MainWindow::connectGraph()
{
    const QScrollBar* bar = m_ScrollArea->horizontalScrollBar();
    connect(bar, &QScrollBar::sliderMoved, this, &MainWindow::updateSelection);
    connect(bar, &QScrollBar::valueChanged, this, &MainWindow::updateSelection);
    connect(bar, &QScrollBar::rangeChanged, this, &MainWindow::sliderRange);
    connect(m_LinePlot, &CuttableLinePlotWidget::CutRequested, this, &MainWindow::cutGraph);
    connect(m_LinePlot, &CuttableLinePlotWidget::ShowInClassificationRequest, this,
            &MainWindow::showSegment);
    connect(m_LinePlot, &CuttableLinePlotWidget::DeleteActionRequested, this,
            &MainWindow::deleteSegment);
    connect(m_LinePlot, &CuttableLinePlotWidget::MoveActionRequested, this,
            &MainWindow::moveSegment);
    connect(m_LinePlot, &CuttableLinePlotWidget::SaveActionRequested, this,
            &MainWindow::saveSegment);
    connect(m_LinePlot, &CuttableLinePlotWidget::SearchActionRequested, this,
            &MainWindow::searchSegment);
    connect(m_LinePlot, &CuttableLinePlotWidget::ZoomOnRegion, this, &MainWindow::ZoomOnRegion);
    connect(m_LinePlot, &CuttableLinePlotWidget::WindowOpened, this, &MainWindow::keepWindow);
}

void MainWindow::connectLabelPane()
{
    connect(m_ResultWidget, &ResultWidget::SegmentsUpdated, this, &MainWindow::updateSegmentViews);
    connect(m_LabeledDataTabWidget, &LabeledDataTabWidget::SegmentsUpdated, this,
            &MainWindow::updateSegmentViews);
    connect(m_ResultWidget, &ResultWidget::ShowSelected, this, &MainWindow::showRange);
    connect(m_LabeledDataTabWidget, &LabeledDataTabWidget::ShowSelected, this,
            &MainWindow::showRange);
    connect(m_ResultWidget, &ResultWidget::SegmentsMoved, m_LabeledDataTabWidget,
            &LabeledDataTabWidget::Refresh);
    connect(m_LabeledDataTabWidget, &LabeledDataTabWidget::NewResultsFound, m_ResultWidget,
            &ResultWidget::ClearAndUpdateSegments);
    connect(m_LabeledDataTabWidget, &LabeledDataTabWidget::NewResultsFound, this,
            &MainWindow::updateSegmentViews);
}

void MainWindow::updateSegmentViews()
{
    m_LinePlot->UpdateCutViz();
    m_OverviewTimeline->UpdateLabels();
}

void MainWindow::buildMenus()
{
    m_FileMenu = menuBar()->addMenu(tr("File"));
    addRows(m_FileMenu,
            {{&MainWindow::m_OpenFileAction, QT_TR_NOOP("Open Data File"), "icons/Folder3.png",
              &MainWindow::openFile, false, true, QKeySequence::Open},
             {&MainWindow::m_SaveDataFileAction, QT_TR_NOOP("Save Data File"), "icons/Save.png",
              &MainWindow::saveDataFile, true},
             {&MainWindow::m_ImportProjectAction, QT_TR_NOOP("Import Project"), nullptr,
              &MainWindow::importLabels, true},
             {&MainWindow::m_ExportProjectAction, QT_TR_NOOP("Export Project"), nullptr,
              &MainWindow::exportProject, true, true, QKeySequence::Save},
             {&MainWindow::m_ExportSummaryAction, QT_TR_NOOP("Export Label Summary"), nullptr,
              &MainWindow::exportSummaryLabels, false},
             {&MainWindow::m_ExitAction, QT_TR_NOOP("Exit"), nullptr, nullptr, false, true,
              QKeySequence::Quit}});
    connect(m_ExitAction, &QAction::triggered, qApp, &QApplication::quit);
    m_VisualizationMenu = menuBar()->addMenu(tr("Visualization"));
    m_AttributesMenu = new AttributesMenu(tr("Attributes"), m_VisualizationMenu);
    m_AttributesMenu->setIcon(loadIcon("icons/Stats2.png"));
    m_VisualizationMenu->addMenu(m_AttributesMenu);
    connect(m_AttributesMenu, &AttributesMenu::AttributeToggled, m_LinePlot,
            &CuttableLinePlotWidget::TogglePlot);
    addRows(m_VisualizationMenu,
            {{&MainWindow::m_GroundTruithAction, QT_TR_NOOP("Ground Truith Comparision"), nullptr,
              &MainWindow::showGroundTruith, true, false}});
    m_ToolsMenu = menuBar()->addMenu(tr("Tools"));
    m_DeriveMenu = addNumberedMenu(tr("Derive Attributes"), "icons/Tool2.png", 0,
                                   DataProcessor::OperationCount, &DataProcessor::getOperationName,
                                   &MainWindow::processAttribute);
    addRows(m_ToolsMenu, {{&MainWindow::m_AddTemplateAction, QT_TR_NOOP("Add Template"),
                           "icons/add.png", &MainWindow::addTemplateForm, true},
                          {&MainWindow::m_MergeLabelsAction, QT_TR_NOOP("Merge Labels"),
                           "icons/merge2.png", &MainWindow::mergeLabels, true},
                          {&MainWindow::m_DataTableAction, QT_TR_NOOP("Data Table"),
                           "icons/Table.png", &MainWindow::showDataTable, true}});
    // The first method does nothing.
    m_AutomaticCutsMenu =
        addNumberedMenu(tr("Automatic Cuts"), "icons/cut.png", 1, CutAutomation::MethodCount,
                        &CutAutomation::getMethodName, &MainWindow::cutAutomationAttribute);
    m_SettingsMenu = menuBar()->addMenu(tr("Settings"));
    addRows(m_SettingsMenu, {{&MainWindow::m_AxesSettingsAction, QT_TR_NOOP("Axes Settings"),
                              "icons/Gear.png", &MainWindow::axesSettings, true},
                             {&MainWindow::m_TemplateDBAction, QT_TR_NOOP("Template Database"),
                              "icons/Database.png", &MainWindow::showTemplateDBSettings, true}});
    m_HelpMenu = menuBar()->addMenu(tr("Help"));
    addRows(m_HelpMenu,
            {{&MainWindow::m_AboutAction, QT_TR_NOOP("About"), "icons/Info.png",
              &MainWindow::aboutDialog, false},
             {&MainWindow::m_HelpAction, QT_TR_NOOP("Online Help"), "icons/Computer.png",
              &MainWindow::openHelp, false, true, QKeySequence::HelpContents}});
}

QMenu* MainWindow::addNumberedMenu(const QString& title, const char* icon, int first, int count,
                                   QString (*nameOf)(int), void (MainWindow::*slot)(int))
{
    QMenu* menu = m_ToolsMenu->addMenu(loadIcon(icon), title);
    for (int i = first; i < count; ++i) {
        auto* action = new IntMappedAction(i, nameOf(i), menu);
        connect(action, qOverload<int>(&IntMappedAction::triggered), this, slot);
        menu->addAction(action);
    }
    m_DataActions.append(menu->menuAction());
    return menu;
}

void MainWindow::addRows(QMenu* menu, const std::vector<MenuRow>& rows)
{
    for (const MenuRow& row : rows) {
        auto* action = new QAction(loadIcon(row.m_Icon), tr(row.m_Title), this);
        action->setShortcut(row.m_Shortcut);
        if (row.m_Slot)
            connect(action, &QAction::triggered, this, row.m_Slot);
        if (row.m_NeedsData)
            m_DataActions.append(action);
        if (row.m_IsShown)
            menu->addAction(action);
        this->*row.m_Action = action;
    }
}

void MainWindow::buildToolBar()
{
    auto* toolBar = new GraphToolBar(m_LinePlot, m_ZoomWidget, this);
    connect(toolBar, &GraphToolBar::CutClicked, this, &MainWindow::cutGraph);
    connect(toolBar, &GraphToolBar::MergeClicked, this, &MainWindow::mergeCuts);
    connect(m_ZoomWidget, &ZoomWidget::ValueChanged, this, &MainWindow::resizeLinePlotWidget);
    addToolBar(toolBar);
}

void MainWindow::openFile()
{
    setRecording(nullptr);
    FileImportWizard wizard(this);
    if (wizard.exec() == QDialog::Accepted && wizard.GetDataSet())
        setRecording(std::make_shared<Recording>(wizard.GetDataSet()));
}

void MainWindow::setRecording(std::shared_ptr<Recording> recording)
{
    clearGraph();
    // The views let go of the old one before it may be freed.
    showRecording(nullptr);
    m_Recording = std::move(recording);
    showRecording(m_Recording.get());
    enableActions();
}

void MainWindow::clearGraph()
{
    m_LinePlot->ClearPlot();
    m_LinePlot->ClearSelection();
    m_LinePlot->ResizePlots(m_LinePlot->width(), m_LinePlot->height());
}

void MainWindow::showRecording(Recording* recording)
{
    m_DataSet = recording ? recording->GetDataSet() : nullptr;
    m_CutCollection = recording ? recording->GetCutCollection() : nullptr;
    m_LabelCollection = recording ? recording->GetLabelCollection() : nullptr;
    m_LabelBackup->Watch(m_DataSet, m_LabelCollection);
    handOver(*m_LinePlot);
    m_OverviewTimeline->SetDataSet(m_DataSet);
    m_OverviewTimeline->SetLabelCollection(m_LabelCollection);
    handOver(*m_LabeledDataTabWidget);
    handOver(*m_ResultWidget);
    handOver(*m_SurveyResultWriter);
    m_LabeledDataTabWidget->Rebuild();
    m_ResultWidget->Rebuild();
    m_AttributesMenu->SetDataSet(m_DataSet);
}

template <class View>
void MainWindow::handOver(View& view)
{
    view.SetDataSet(m_DataSet);
    view.SetCutCollection(m_CutCollection);
    view.SetLabelCollection(m_LabelCollection);
}

void MainWindow::enableActions()
{
    for (QAction* action : m_DataActions)
        action->setEnabled(m_DataSet);
}

void MainWindow::keepWindow(QWidget* window)
{
    m_Windows.Add(window, m_Recording);
}

void MainWindow::showDataTable()
{
    if (m_DataSet)
        DataTableDialog(m_DataSet, this).exec();
}

void MainWindow::axesSettings()
{
    if (!m_DataSet)
        return;
    AxesSettingsDialog(m_DataSet, this).exec();
    m_LinePlot->ResetVerticalAxes();
}

void MainWindow::aboutDialog()
{
    AboutDialog(this).exec();
}

void MainWindow::openHelp()
{
    if (!QDesktopServices::openUrl(QUrl(HelpAddress())))
        QMessageBox::warning(this, tr("Cannot open"), tr("Cannot open\r\n") + HelpAddress());
}

void MainWindow::cutGraph()
{
    m_SegmentEditor->Cut(m_Recording.get());
}

void MainWindow::mergeCuts()
{
    m_SegmentEditor->Merge(m_Recording.get());
}

void MainWindow::deleteSegment()
{
    m_SegmentEditor->Delete(m_Recording.get());
}

void MainWindow::moveSegment()
{
    m_SegmentEditor->Move(m_Recording.get());
}

void MainWindow::showSegment()
{
    m_SegmentEditor->Show(m_Recording.get());
}

PatternsDataObject* MainWindow::saveSegment()
{
    m_SavedPattern = m_SegmentEditor->Save(m_Recording.get());
    return m_SavedPattern.get();
}

void MainWindow::searchSegment()
{
    if (!m_SegmentEditor->Search(m_Recording.get()))
        return;
    m_ResultWidget->ClearAndUpdateSegments();
    updateSegmentViews();
}

void MainWindow::addTemplateForm()
{
    m_SegmentEditor->AddTemplate(m_Recording.get());
}

void MainWindow::showTemplateDBSettings()
{
    DatabaseControlPanel(this).exec();
}

void MainWindow::mergeLabels()
{
    if (!m_CutCollection)
        return;
    MergeLabelsDialog dialog(m_CutCollection, this);
    connect(&dialog, &MergeLabelsDialog::LabelsMerged, this, &MainWindow::updateSegmentViews);
    connect(&dialog, &MergeLabelsDialog::LabelsMerged, m_LabeledDataTabWidget,
            &LabeledDataTabWidget::Refresh);
    dialog.exec();
}

void MainWindow::saveDataFile()
{
    m_Files->SaveDataFile(m_Recording.get());
}

void MainWindow::exportProject()
{
    m_Files->ExportProject(m_Recording.get());
}

void MainWindow::exportSummaryLabels()
{
    m_Files->ExportSummaryLabels(m_Recording.get());
}

void MainWindow::importLabels()
{
    const auto addGroup = [this](const QString& name) {
        return m_LabeledDataTabWidget->AddGroup(name);
    };
    if (m_Files->ImportLabels(m_Recording.get(), addGroup))
        updateSegmentViews();
}

void MainWindow::showGroundTruith()
{
    auto reference = m_Files->ReadReference(m_Recording.get());
    if (!reference)
        return;
    auto* window = new GroundTruithComparisionWidget;
    window->SetLabelCollection(m_LabelCollection);
    window->SetBehaviorCollection(reference.get());
    window->SetCutCollection(m_CutCollection);
    window->SetDataSet(m_DataSet);
    using Shown = std::pair<std::shared_ptr<Recording>, decltype(reference)>;
    m_Windows.Add(window, std::make_shared<Shown>(m_Recording, std::move(reference)));
    window->show();
}

void MainWindow::processAttribute(int operation)
{
    if (!m_DataSet)
        return;
    DataProcessor processor(this);
    processor.setDataSet(m_DataSet);
    if (!processor.runOperation(operation))
        return;
    for (const AddedAttribute& added : processor.getAddedAttributes()) {
        m_AttributesMenu->AddAttribute(added.m_Index, added.m_Name);
        m_ResultWidget->AddAttribute(added.m_Index, added.m_Name);
        m_LabeledDataTabWidget->AddAttribute(added.m_Index, added.m_Name);
    }
}

void MainWindow::cutAutomationAttribute(int method)
{
    if (!m_DataSet || !m_CutCollection)
        return;
    CutAutomation cutter(this);
    cutter.setDataSet(m_DataSet);
    cutter.setCutCollection(m_CutCollection);
    if (!cutter.generateCuts(method)) {
        ShowUserError(this, tr("Error Generating Cuts"), cutter.getErrorMessage());
        return;
    }
    updateSegmentViews();
    m_LabeledDataTabWidget->Refresh();
}

void MainWindow::updateSelection()
{
    m_Navigator->UpdateVisiblePart();
}

void MainWindow::showRange(int from, int to)
{
    m_Navigator->ShowRange(from, to);
}

void MainWindow::sliderRange(int minimum, int maximum)
{
    m_Navigator->UpdateScrollRange(minimum, maximum);
}

void MainWindow::resizeLinePlotWidget()
{
    m_Navigator->ResizePlot();
}

void MainWindow::ZoomOnRegion(int from, int to)
{
    if (m_DataSet)
        m_Navigator->ZoomOnRegion(from, to, m_DataSet->GetRowCount());
}

void MainWindow::hideShowLabeledData(bool show)
{
    m_LinePlot->ShowLabeledData(show);
}
