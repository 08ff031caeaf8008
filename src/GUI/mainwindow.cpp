#include "mainwindow.h"

#include "aboutdialog.h"
#include "applicationinfo.h"
#include "attributesmenu.h"
#include "axessettingsdialog.h"
#include "commandpalette.h"
#include "cutautomation.h"
#include "cuttablelineplotwidget.h"
#include "databasecontrolpanel.h"
#include "dataprocessor.h"
#include "dataset.h"
#include "datatabledialog.h"
#include "fileimportwizard.h"
#include "graphtoolbar.h"
#include "groundtruithcomparisionwidget.h"
#include "intmappedaction.h"
#include "labelbackup.h"
#include "labeleddatatabwidget.h"
#include "mergelabelsdialog.h"
#include "modaldialog.h"
#include "overviewtimelinewidget.h"
#include "patternsdataobject.h"
#include "plotnavigator.h"
#include "recordingfiles.h"
#include "resourcepath.h"
#include "resultwidget.h"
#include "segmenteditor.h"
#include "settingsfolder.h"
#include "surveyresultwriter.h"
#include "tooltable.h"
#include "zoomwidget.h"
#include <QDesktopServices>
#include <QMenuBar>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

namespace
{

// Beside the menus: no higher than a line of text, or the bar would grow.
class CornerButton : public QToolButton
{
public:
    QSize sizeHint() const override
    {
        return {QToolButton::sizeHint().width(), fontMetrics().height()};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent), m_OverviewTimeline(new OverviewTimelineWidget),
      m_LinePlot(new CuttableLinePlotWidget), m_ZoomWidget(new ZoomWidget),
      m_ScrollArea(new QScrollArea), m_ResultWidget(new ResultWidget),
      m_LabeledDataTabWidget(new LabeledDataTabWidget),
      m_Navigator(
          new PlotNavigator(m_ScrollArea, m_LinePlot, m_OverviewTimeline, m_ZoomWidget, this)),
      m_SegmentEditor(std::make_unique<SegmentEditor>(this, m_LinePlot)),
      m_Files(std::make_unique<RecordingFiles>(this)),
      m_SurveyResultWriter(new SurveyResultWriter(this)),
      m_LabelBackup(std::make_unique<LabelBackup>(SettingsFolder() + QStringLiteral("backup"))),
      m_Tools(MakeTools({this, m_ResultWidget, m_LabeledDataTabWidget}))
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
    enableActions();
}

MainWindow::~MainWindow()
{
    // The views outlive the recording by a little.
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
    using Plot = CuttableLinePlotWidget;
    const QScrollBar* bar = m_ScrollArea->horizontalScrollBar();
    connect(bar, &QScrollBar::sliderMoved, this, &MainWindow::updateSelection);
    connect(bar, &QScrollBar::valueChanged, this, &MainWindow::updateSelection);
    connect(bar, &QScrollBar::rangeChanged, this, &MainWindow::sliderRange);
    connect(m_LinePlot, &Plot::CutRequested, this, &MainWindow::cutGraph);
    connect(m_LinePlot, &Plot::ShowInClassificationRequest, this, &MainWindow::showSegment);
    connect(m_LinePlot, &Plot::DeleteActionRequested, this, &MainWindow::deleteSegment);
    connect(m_LinePlot, &Plot::MoveActionRequested, this, &MainWindow::moveSegment);
    connect(m_LinePlot, &Plot::SaveActionRequested, this, &MainWindow::saveSegment);
    connect(m_LinePlot, &Plot::SearchActionRequested, this, &MainWindow::searchSegment);
    connect(m_LinePlot, &Plot::ZoomOnRegion, this, &MainWindow::ZoomOnRegion);
}

void MainWindow::connectLabelPane()
{
    connect(m_ResultWidget, &ResultWidget::ShowSelected, this, &MainWindow::showRange);
    connect(m_LabeledDataTabWidget, &LabeledDataTabWidget::ShowSelected, this,
            &MainWindow::showRange);
    connect(m_ResultWidget, &ResultWidget::MoveResults, m_SurveyResultWriter,
            qOverload<const QString&>(&SurveyResultWriter::WriteLabels));
}

void MainWindow::buildMenus()
{
    for (const Tool& tool : m_Tools) {
        if (tool.m_Place != Tool::PALETTE_ONLY)
            addToolAction(tool);
    }
    QMenu* visualization = menuOf(tr("Visualization"));
    m_AttributesMenu = new AttributesMenu(tr("Attributes"), visualization);
    m_AttributesMenu->setIcon(QIcon(ResourcePath(QStringLiteral("icons/Stats2.png"))));
    visualization->insertMenu(visualization->actions().value(0), m_AttributesMenu);
    connect(m_AttributesMenu, &AttributesMenu::AttributeToggled, m_LinePlot,
            &CuttableLinePlotWidget::TogglePlot);

    auto* palette = new CornerButton;
    palette->setText(tr("Find a tool ..."));
    palette->setAutoRaise(true);
    palette->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_P);
    palette->setToolTip(tr("Find a tool by a few letters of its name (%1)")
                            .arg(palette->shortcut().toString(QKeySequence::NativeText)));
    connect(palette, &QToolButton::clicked, this, &MainWindow::showCommandPalette);
    menuBar()->setCornerWidget(palette);
}

// A menu is made with its first entry, a submenu with the icon of that.
QMenu* MainWindow::menuOf(const QString& path)
{
    QMenu*& menu = m_Menus[path];
    if (!menu) {
        const QString above = path.section(QLatin1Char('/'), 0, -2);
        const QString title = path.section(QLatin1Char('/'), -1);
        menu = above.isEmpty() ? menuBar()->addMenu(title) : menuOf(above)->addMenu(title);
    }
    return menu;
}

void MainWindow::addToolAction(const Tool& tool)
{
    const bool isNumbered = tool.m_Number >= 0;
    const QIcon icon = tool.m_Icon ? QIcon(ResourcePath(QLatin1String(tool.m_Icon))) : QIcon();
    QMenu* menu = menuOf(tool.m_Menu);
    QAction* action = isNumbered ? new IntMappedAction(tool.m_Number, tool.m_Title, this)
                                 : new QAction(icon, tool.m_Title, this);
    action->setShortcut(tool.m_Keys);
    connect(action, &QAction::triggered, this, [run = tool.m_Run] { run(); });
    if (tool.m_Place != Tool::OUT_OF_MENU)
        menu->addAction(action);
    if (isNumbered)
        menu->setIcon(icon);
    // The entries of a numbered menu are out of reach with it.
    QAction* greyed = isNumbered ? menu->menuAction() : action;
    if (tool.m_Condition != Tool::NOTHING && tool.m_Place != Tool::ALWAYS_IN_MENU &&
        !m_DataActions.contains(greyed))
        m_DataActions.append(greyed);
}

void MainWindow::buildToolBar()
{
    auto* toolBar = new GraphToolBar(m_LinePlot, m_ZoomWidget, this);
    connect(toolBar, &GraphToolBar::CutClicked, this, &MainWindow::cutGraph);
    connect(toolBar, &GraphToolBar::MergeClicked, this, &MainWindow::mergeCuts);
    connect(m_ZoomWidget, &ZoomWidget::ValueChanged, this, &MainWindow::resizeLinePlotWidget);
    addToolBar(toolBar);
}

void MainWindow::enableActions()
{
    for (QAction* action : qAsConst(m_DataActions))
        action->setEnabled(m_Recording != nullptr);
}

void MainWindow::showCommandPalette()
{
    std::vector<CommandPalette::Entry> entries;
    for (const Tool& tool : m_Tools) {
        QString title = tool.m_Title;
        entries.push_back({tool.m_Menu, title.replace(QStringLiteral("&&"), QStringLiteral("&")),
                           tool.m_Keys, obstacleOf(tool), tool.m_Run});
    }
    for (QAction* action : m_AttributesMenu->actions())
        entries.push_back(
            {m_AttributesMenu->title(), action->text(), {}, {}, [action] { action->trigger(); }});
    std::function<void()> run;
    {
        ModalDialog<CommandPalette> palette(std::move(entries), this);
        if (palette.IsAccepted())
            run = palette->GetChoice();
    }
    if (run)
        run();
}

QString MainWindow::obstacleOf(const Tool& tool) const
{
    const bool hasRows = !m_LinePlot->GetSelectedRange().value_or(RowSpan()).IsEmpty();
    if (tool.m_Condition == Tool::NOTHING)
        return {};
    if (!m_Recording)
        return tr("Open a data file first");
    if (tool.m_Condition == Tool::SELECTED_ROWS && !hasRows)
        return tr("Drag over rows of the graph first");
    if (tool.m_Condition == Tool::SELECTED_SEGMENT && !hasRows && !m_LinePlot->GetSelectedRow())
        return tr("Drag over rows of the graph or right-click a segment first");
    if (tool.m_Condition == Tool::BEHAVIOR &&
        m_Recording->GetLabelCollection()->GetLabelCount() == 0)
        return tr("Add a behavior first");
    return {};
}

void MainWindow::openFile()
{
    SetRecording(nullptr);
    ModalDialog<FileImportWizard> wizard(this);
    if (wizard.IsAccepted() && wizard->GetDataSet())
        SetRecording(std::make_shared<LiveRecording>(wizard->TakeDataSet()));
}

void MainWindow::SetRecording(SharedRecording recording)
{
    // The views let go of the old one before it may be freed.
    showRecording(nullptr);
    m_Recording = std::move(recording);
    showRecording(m_Recording.get());
    enableActions();
}

void MainWindow::showRecording(LiveRecording* recording)
{
    m_LabelBackup->Watch(DataOf(recording), LabelsOf(recording));
    m_LinePlot->SetRecording(recording);
    m_OverviewTimeline->SetRecording(recording);
    m_LabeledDataTabWidget->SetRecording(recording);
    m_ResultWidget->SetRecording(recording);
    m_AttributesMenu->SetRecording(recording);
    m_SurveyResultWriter->SetDataSet(DataOf(recording));
    m_SurveyResultWriter->SetCutCollection(CutsOf(recording));
    m_SurveyResultWriter->SetLabelCollection(LabelsOf(recording));
}

void MainWindow::showDataTable()
{
    if (m_Recording)
        ShowDataTable(m_Recording, this);
}

void MainWindow::axesSettings()
{
    if (m_Recording)
        EditAxes(m_Recording, this);
}

void MainWindow::mergeLabels()
{
    if (m_Recording)
        RunMergeLabels(m_Recording, this);
}

void MainWindow::showGroundTruith()
{
    if (m_Recording)
        ShowGroundTruith(m_Recording, this);
}

void MainWindow::showTemplateDBSettings()
{
    ShowTemplateDatabase(m_Recording, this);
}

void MainWindow::processAttribute(int operation)
{
    if (m_Recording)
        DeriveAttributes(m_Recording, this, operation);
}

void MainWindow::cutAutomationAttribute(int method)
{
    if (m_Recording)
        CutByItself(m_Recording, this, method);
}

void MainWindow::aboutDialog()
{
    ModalDialog<AboutDialog>(this).Run();
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
    m_SegmentEditor->Search(m_Recording.get());
}

void MainWindow::addTemplateForm()
{
    m_SegmentEditor->AddTemplate(m_Recording.get());
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
    m_Files->ImportLabels(m_Recording.get());
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
    if (m_Recording)
        m_Navigator->ZoomOnRegion(from, to, m_Recording->GetDataSet()->GetRowCount());
}

void MainWindow::hideShowLabeledData(bool show)
{
    m_LinePlot->ShowLabeledData(show);
}
