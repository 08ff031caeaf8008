#pragma once

#include "tool.h"
#include <QMainWindow>
#include <memory>
#include <vector>

class AttributesMenu;
class CuttableLinePlotWidget;
class LabelBackup;
class LabeledDataTabWidget;
class OverviewTimelineWidget;
class PatternsDataObject;
class PlotNavigator;
class QScrollArea;
class RecordingFiles;
class ResultWidget;
class SegmentEditor;
class SurveyResultWriter;
class ZoomWidget;

/// The program's one main window. It has a recording or none, hands it to every view and offers
/// all tools.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Null without one.
    const SharedRecording& GetRecording() const { return m_Recording; }
    /// Shows a recording in place of the one before, in all views and without plots; null shows
    /// none.
    void SetRecording(SharedRecording recording);

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
    /// Runs an operation that derives attributes, by its place in the menu.
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
    /// Finds a tool by a few letters and runs it.
    void showCommandPalette();

private:
    QWidget* makeGraphPane();
    QWidget* makeLabelPane();
    void connectGraph();
    void connectLabelPane();
    void buildMenus();
    QMenu* menuOf(const QString& path);
    void addToolAction(const Tool& tool);
    void buildToolBar();
    QString obstacleOf(const Tool& tool) const;
    void showRecording(LiveRecording* recording);
    void enableActions();

    // Null without one. Windows that show it have a share, too.
    SharedRecording m_Recording;

    OverviewTimelineWidget* m_OverviewTimeline;
    CuttableLinePlotWidget* m_LinePlot;
    ZoomWidget* m_ZoomWidget;
    QScrollArea* m_ScrollArea;
    ResultWidget* m_ResultWidget;
    LabeledDataTabWidget* m_LabeledDataTabWidget;
    PlotNavigator* m_Navigator;
    std::unique_ptr<SegmentEditor> m_SegmentEditor;
    std::unique_ptr<RecordingFiles> m_Files;
    SurveyResultWriter* m_SurveyResultWriter;
    std::unique_ptr<LabelBackup> m_LabelBackup;
    std::unique_ptr<PatternsDataObject> m_SavedPattern;

    std::vector<Tool> m_Tools;
    AttributesMenu* m_AttributesMenu = nullptr;
    // By path.
    QHash<QString, QMenu*> m_Menus;
    // Enabled only with a recording.
    QList<QAction*> m_DataActions;
};
