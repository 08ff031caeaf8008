#pragma once

class CuttableLinePlotWidget;
class OverviewTimelineWidget;
class QWidget;
class Recording;

/// Changes the segments of a recording by what is selected on the main graph. A missing
/// recording or selection is told to the user.
class SegmentEditor
{
public:
    /// window: the parent of error boxes.
    SegmentEditor(QWidget* window, CuttableLinePlotWidget* plot, OverviewTimelineWidget* overview)
        : m_Window(window), m_Plot(plot), m_Overview(overview)
    {
    }

    /// Cuts the selected range out, or splits at the selected row.
    void Cut(Recording* recording);
    /// Merges the segments of the selected range.
    void Merge(Recording* recording);

private:
    bool checkRecording(const Recording* recording);
    void showInvalidSelection();
    void showChange();

    QWidget* m_Window;
    CuttableLinePlotWidget* m_Plot;
    OverviewTimelineWidget* m_Overview;
};
