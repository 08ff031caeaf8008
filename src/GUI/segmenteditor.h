#pragma once

#include "rowspan.h"
#include <QCoreApplication>
#include <QList>
#include <memory>
#include <optional>

class CutSegment;
class CuttableLinePlotWidget;
class LiveRecording;
class PatternsDataObject;
class QWidget;

/// Changes the segments of a recording and their labels by what is selected on the main graph, and
/// tells it. A missing recording or selection is told to the user.
class SegmentEditor
{
    Q_DECLARE_TR_FUNCTIONS(SegmentEditor)

public:
    /// window: the parent of dialogs and error boxes.
    SegmentEditor(QWidget* window, CuttableLinePlotWidget* plot) : m_Window(window), m_Plot(plot) {}

    /// Cuts the selected range out, or splits at the selected row.
    void Cut(LiveRecording* recording);
    /// Merges the segments of the selected range.
    void Merge(LiveRecording* recording);
    /// Takes the labels off the segments that lie in the selected range, or off the one at the
    /// selected row, and gives up search results there.
    void Delete(LiveRecording* recording);
    /// Labels the segment at the selected row with a behaviour that the user chooses.
    void Move(LiveRecording* recording);
    /// Stores the selected range, or the segment at the selected row, as a template; null when
    /// there is none or the user cancels.
    std::unique_ptr<PatternsDataObject> Save(LiveRecording* recording);
    /// The same for a selected range of rows only, from left to right.
    void AddTemplate(LiveRecording* recording);
    /// Saves a template and searches the unlabelled segments for it.
    void Search(LiveRecording* recording);
    /// Asks for a recording and a selected row, and does no more.
    void Show(LiveRecording* recording);

private:
    std::optional<RowSpan> findRows(LiveRecording* recording);
    bool checkRecording(const LiveRecording* recording);
    CutSegment* findSegment(LiveRecording& recording, int row) const;
    std::optional<QList<CutSegment*>> findSelected(LiveRecording& recording) const;
    void showInvalidSelection();

    QWidget* m_Window;
    CuttableLinePlotWidget* m_Plot;
};
