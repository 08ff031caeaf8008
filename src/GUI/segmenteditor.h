#pragma once

#include <QCoreApplication>
#include <memory>

class CutSegment;
class CuttableLinePlotWidget;
class OverviewTimelineWidget;
class PatternsDataObject;
class QWidget;
class Recording;
class ResultWidget;

/// Changes the segments of a recording and their labels by what is selected on the main graph. A
/// missing recording or selection is told to the user.
class SegmentEditor
{
    Q_DECLARE_TR_FUNCTIONS(SegmentEditor)

public:
    /// window: the parent of dialogs and error boxes.
    SegmentEditor(QWidget* window, CuttableLinePlotWidget* plot, OverviewTimelineWidget* overview,
                  ResultWidget* results)
        : m_Window(window), m_Plot(plot), m_Overview(overview), m_Results(results)
    {
    }

    /// Cuts the selected range out, or splits at the selected row.
    void Cut(Recording* recording);
    /// Merges the segments of the selected range.
    void Merge(Recording* recording);
    /// Takes the labels off the segments that lie in the selected range, or off the one at the
    /// selected row, and gives up search results there.
    void Delete(Recording* recording);
    /// Labels the segment at the selected row with a behaviour that the user chooses.
    void Move(Recording* recording);
    /// Stores the selected range, or the segment at the selected row, as a template; null when
    /// there is none or the user cancels.
    std::unique_ptr<PatternsDataObject> Save(Recording* recording);
    /// The same for a selected range of rows only, from left to right.
    void AddTemplate(Recording* recording);
    /// Saves a template and searches the unlabelled segments for it. True with new results.
    bool Search(Recording* recording);
    /// Asks for a recording and a selected row, and does no more.
    void Show(Recording* recording);

private:
    bool findRows(Recording* recording, int& from, int& to);
    bool checkRecording(const Recording* recording);
    CutSegment* findSelected(Recording& recording, int row) const;
    void removeLabel(Recording& recording, CutSegment* segment);
    void removeResult(Recording& recording, CutSegment* segment);
    void showInvalidSelection();
    void showChange();

    QWidget* m_Window;
    CuttableLinePlotWidget* m_Plot;
    OverviewTimelineWidget* m_Overview;
    ResultWidget* m_Results;
};
