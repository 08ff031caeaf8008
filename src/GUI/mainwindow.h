#pragma once

#include "analysiswindows.h"
#include <QMainWindow>
#include <memory>

class AttributesMenu;
class CutCollection;
class CuttableLinePlotWidget;
class DataSet;
class LabelBackup;
class LabelCollection;
class LabeledDataTabWidget;
class OverviewTimelineWidget;
class PatternsDataObject;
class PlotNavigator;
class QScrollArea;
class QSplitter;
class Recording;
class RecordingFiles;
class ResultWidget;
class SegmentEditor;
class SurveyResultWriter;
class ZoomWidget;

/// The program's one main window. It has a recording or none, hands it to every view and opens
/// all further windows.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

public slots:
    void showDataTable();
    void updateSelection();
    /// Scrolls the graph to a range of rows.
    void showRange(int from, int to);
    void sliderRange(int minimum, int maximum);
    void aboutDialog();
    void openHelp();
    /// Drops the recording, then asks for another.
    void openFile();
    void exportProject();
    void importLabels();
    void exportSummaryLabels();
    void saveDataFile();
    /// Lets labelled segments that are close to each other meet.
    void mergeLabels();
    void mergeCuts();
    void cutGraph();
    void deleteSegment();
    void moveSegment();
    /// Stores the selected rows or segment as a template. The new one, until the next call; null
    /// when there is none.
    PatternsDataObject* saveSegment();
    /// Stores them and searches for more of the kind.
    void searchSegment();
    void addTemplateForm();
    void showTemplateDBSettings();
    /// Needs a selected row; has no visible effect.
    void showSegment();
    /// Runs an operation that derives attributes, by its place in the menu, and offers what it
    /// added.
    void processAttribute(int operation);
    /// Runs a method of automatic cutting.
    void cutAutomationAttribute(int method);
    void axesSettings();
    /// Shows a reference labelling from a file beside the recording's own.
    void showGroundTruith();
    void resizeLinePlotWidget();
    /// Zooms the graph on a range of rows.
    void ZoomOnRegion(int from, int to);
    void hideShowLabeledData(bool show);

private:
    struct MenuRow;
    QWidget* makeGraphPane();
    QWidget* makeLabelPane();
    void connectGraph();
    void connectLabelPane();
    void buildMenus();
    void addRows(QMenu* menu, const std::vector<MenuRow>& rows);
    QMenu* addNumberedMenu(const QString& title, const char* icon, int first, int count,
                           QString (*nameOf)(int), void (MainWindow::*slot)(int));
    void buildToolBar();
    void setRecording(std::shared_ptr<Recording> recording);
    void clearGraph();
    void showRecording(Recording* recording);
    template <class View>
    void handOver(View& view);
    void enableActions();
    void keepWindow(QWidget* window);
    void updateSegmentViews();

    // The recording and its parts, all null without one. Others may share it: see
    // AnalysisWindows.
    std::shared_ptr<Recording> m_Recording;
    DataSet* m_DataSet = nullptr;
    CutCollection* m_CutCollection = nullptr;
    LabelCollection* m_LabelCollection = nullptr;

    OverviewTimelineWidget* m_OverviewTimeline;
    CuttableLinePlotWidget* m_LinePlot;
    ZoomWidget* m_ZoomWidget;
    QScrollArea* m_ScrollArea;
    ResultWidget* m_ResultWidget;
    LabeledDataTabWidget* m_LabeledDataTabWidget;
    PlotNavigator* m_Navigator;
    std::unique_ptr<SegmentEditor> m_SegmentEditor;
    std::unique_ptr<RecordingFiles> m_Files;
    std::unique_ptr<SurveyResultWriter> m_SurveyResultWriter;
    std::unique_ptr<LabelBackup> m_LabelBackup;
    std::unique_ptr<PatternsDataObject> m_SavedPattern;

    QMenu* m_FileMenu = nullptr;
    QMenu* m_VisualizationMenu = nullptr;
    AttributesMenu* m_AttributesMenu = nullptr;
    QMenu* m_ToolsMenu = nullptr;
    QMenu* m_DeriveMenu = nullptr;
    QMenu* m_AutomaticCutsMenu = nullptr;
    QMenu* m_SettingsMenu = nullptr;
    QMenu* m_HelpMenu = nullptr;
    QAction* m_OpenFileAction = nullptr;
    QAction* m_SaveDataFileAction = nullptr;
    QAction* m_ImportProjectAction = nullptr;
    QAction* m_ExportProjectAction = nullptr;
    QAction* m_ExportSummaryAction = nullptr;
    QAction* m_ExitAction = nullptr;
    QAction* m_GroundTruithAction = nullptr;
    QAction* m_AddTemplateAction = nullptr;
    QAction* m_MergeLabelsAction = nullptr;
    QAction* m_DataTableAction = nullptr;
    QAction* m_AxesSettingsAction = nullptr;
    QAction* m_TemplateDBAction = nullptr;
    QAction* m_AboutAction = nullptr;
    QAction* m_HelpAction = nullptr;
    // Enabled only with a recording.
    QList<QAction*> m_DataActions;

    // Last, so that the windows go before the recordings they show.
    AnalysisWindows m_Windows;
};
