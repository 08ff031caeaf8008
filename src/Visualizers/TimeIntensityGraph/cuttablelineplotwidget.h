#pragma once

#include "liverecording.h"
#include "plotareawidget.h"
#include "rubberband.h"
#include <QPointer>

class CutSegment;
class QDrag;
class QMenu;

/// The main graph: the recording's attributes with its segments, in which the user selects.
///
/// The widget only emits requests; null data set, cuts and labels are fine at any time.
class CuttableLinePlotWidget : public PlotAreaWidget
{
    Q_OBJECT
public:
    explicit CuttableLinePlotWidget(QWidget* parent = nullptr);
    ~CuttableLinePlotWidget() override;

    /// Shows a recording without plots and follows its changes; null shows none.
    void SetRecording(LiveRecording* recording);
    void SetDataSet(DataSet* dataSet) override;
    void SetLabelCollection(LabelCollection* labels) { m_LabelCollection = labels; }

    /// The rows of the dragged range, from above to for a drag to the left; none without one.
    std::optional<RowSpan> GetSelectedRange() const;
    /// The row of the last click; none without one.
    std::optional<int> GetSelectedRow() const;
    /// The row behind a row's place when labelled segments are collapsed to blocks.
    int computeAdjustedTimePosition(int index) const;

signals:
    void ZoomOnRegion(int startIndex, int endIndex);
    void CutRequested();
    void ShowInClassificationRequest();
    void DeleteActionRequested();
    void MoveActionRequested();
    void SaveActionRequested();
    void SearchActionRequested();

public slots:
    void AddPlot(int attributeID) override;
    /// Takes the dragged range away; a selected row stays.
    void ClearSelection();
    void ShowLabeledData(bool show);
    void UpdateCutViz();
    /// Reads the limits of all plots anew.
    void ResetVerticalAxes();
    void SetEnableOverlay(bool enable);
    bool GetEnableOverlay() const { return m_Overlay; }
    /// Reads the number of rows anew.
    void updateTimeAxis();
    void showContextMenu(QPoint point);

public:
    using PlotAreaWidget::AddPlot;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// Runs the drag of a segment to another view.
    virtual void runDrag(QDrag& drag);

private:
    struct MenuEntry;
    static const std::vector<MenuEntry>& menuEntries();
    bool canZoom(const CutSegment& segment) const;
    bool canSave(const CutSegment&) const { return true; }
    bool canOpenPlot(const CutSegment& segment) const;
    bool canRemoveLabel(const CutSegment& segment) const;
    void zoomOnSelection(const CutSegment& segment);
    void openPlot(const CutSegment& segment);
    void requestSave(const CutSegment&) { emit SaveActionRequested(); }
    void requestSearch(const CutSegment&) { emit SearchActionRequested(); }
    void requestMove(const CutSegment&) { emit MoveActionRequested(); }
    void requestDelete(const CutSegment&) { emit DeleteActionRequested(); }

    CutSegment* segmentAt(double x, int& index) const;
    QPixmap dragPicture(const CutSegment& segment) const;
    void paintTimeAxis(QPainter& painter) const;
    void paintSelection(QPainter& painter) const;
    void paintOverlay(QPainter& painter) const;

    QPointer<LiveRecording> m_Recording;
    LabelCollection* m_LabelCollection = nullptr;
    // The row of the last context menu, which the keys move by 5; -1 without one.
    int m_SelectedIndex = -1;
    int m_MouseX = 0;
    RubberBand m_Selection;
    int m_DragX = -1;
    // Outlives its closing: an entry may open a dialog, which the menu has to survive.
    QMenu* m_ContextMenu;
    bool m_ShowLabeled = true;
    bool m_Overlay = true;
};
