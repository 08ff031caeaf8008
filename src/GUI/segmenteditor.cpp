#include "segmenteditor.h"

#include "cuttablelineplotwidget.h"
#include "overviewtimelinewidget.h"
#include "recording.h"
#include "usererror.h"
#include <QLoggingCategory>

namespace
{

Q_LOGGING_CATEGORY(segments, "skerrymoor.segments", QtWarningMsg)

QString tr(const char* text)
{
    return QObject::tr(text);
}

} // namespace

void SegmentEditor::Cut(Recording* recording)
{
    if (!checkRecording(recording))
        return;
    int from = 0;
    int to = 0;
    if (m_Plot->GetSelectedRange(from, to)) {
        recording->GetCutCollection()->InsertCut(from, to, CutSegment::SEGMENT_CUT);
        qCDebug(segments) << "from index: " << from;
        qCDebug(segments) << "to index: " << to;
    } else if (m_Plot->GetSelectedRow(from)) {
        recording->GetCutCollection()->InsertCut(from, CutSegment::SEGMENT_CUT);
    } else {
        showInvalidSelection();
        return;
    }
    showChange();
    m_Plot->ClearSelection();
}

void SegmentEditor::Merge(Recording* recording)
{
    if (!checkRecording(recording))
        return;
    int from = 0;
    int to = 0;
    if (!m_Plot->GetSelectedRange(from, to)) {
        showInvalidSelection();
        return;
    }
    recording->GetCutCollection()->MergeCuts(from, to);
    showChange();
}

bool SegmentEditor::checkRecording(const Recording* recording)
{
    if (!recording)
        ShowUserError(m_Window, tr("Error - No Data Set"),
                      tr("Invalid Data Set. Please load a valid data set into the application."));
    return recording;
}

void SegmentEditor::showInvalidSelection()
{
    ShowUserError(m_Window, tr("Error - Invalid Selection"),
                  tr("Invalid Selection. Please make a valid selection on the graph."));
}

void SegmentEditor::showChange()
{
    m_Plot->UpdateCutViz();
    m_Overview->UpdateLabels();
}
