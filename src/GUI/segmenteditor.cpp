#include "segmenteditor.h"

#include "behaviorselectiondialog.h"
#include "cuttablelineplotwidget.h"
#include "liverecording.h"
#include "modaldialog.h"
#include "patternsdataobject.h"
#include "templatesearch.h"
#include "usererror.h"
#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcSegments, "skerrymoor.segments", QtWarningMsg)

void SegmentEditor::Cut(LiveRecording* recording)
{
    if (!checkRecording(recording))
        return;
    int from = 0;
    int to = 0;
    if (m_Plot->GetSelectedRange(from, to)) {
        recording->GetCutCollection()->InsertCut(from, to, CutSegment::SEGMENT_CUT);
        qCDebug(lcSegments) << "from index: " << from;
        qCDebug(lcSegments) << "to index: " << to;
    } else if (m_Plot->GetSelectedRow(from)) {
        recording->GetCutCollection()->InsertCut(from, CutSegment::SEGMENT_CUT);
    } else {
        showInvalidSelection();
        return;
    }
    recording->TellSegments();
    m_Plot->ClearSelection();
}

void SegmentEditor::Merge(LiveRecording* recording)
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
    // Labelled segments may be among those that are gone.
    recording->TellLabels();
}

void SegmentEditor::Delete(LiveRecording* recording)
{
    if (!checkRecording(recording))
        return;
    bool isSelected = false;
    const QList<CutSegment*> segments = findSegments(*recording, isSelected);
    if (!isSelected)
        showInvalidSelection();
    if (segments.isEmpty())
        return;
    const LiveRecording::Hold hold(recording);
    recording->GetLabelling().Unlabel(segments);
    if (!recording->GetLabelling().Reject(segments).IsEmpty())
        qCDebug(lcSegments) << "Removing currently labeling";
    recording->TellLabels();
}

QList<CutSegment*> SegmentEditor::findSegments(LiveRecording& recording, bool& isSelected) const
{
    int from = 0;
    int to = 0;
    isSelected = true;
    if (m_Plot->GetSelectedRange(from, to))
        return recording.GetCutCollection()->GetSegments(from, to);
    isSelected = m_Plot->GetSelectedRow(from);
    CutSegment* segment = isSelected ? findSelected(recording, from) : nullptr;
    if (isSelected && !segment)
        qCDebug(lcSegments) << "No cut found";
    return segment ? QList<CutSegment*>{segment} : QList<CutSegment*>();
}

CutSegment* SegmentEditor::findSelected(LiveRecording& recording, int row) const
{
    int index = 0;
    return recording.GetCutCollection()->FindSegment(row, index);
}

void SegmentEditor::Move(LiveRecording* recording)
{
    if (!checkRecording(recording))
        return;
    int row = 0;
    if (!m_Plot->GetSelectedRow(row)) {
        showInvalidSelection();
        return;
    }
    CutSegment* segment = findSelected(*recording, row);
    if (!segment)
        return;
    ModalDialog<BehaviorSelectionDialog> dialog(m_Window);
    dialog->setWindowTitle(tr("Select Behavior"));
    dialog->SetLabelCollection(recording->GetLabelCollection());
    if (!dialog.IsAccepted() || !dialog->GetSelectedLabel())
        return;
    // The segment may have gone while the dialog was open.
    if (!recording->GetCutCollection()->Contains(segment))
        return;
    const LiveRecording::Hold hold(recording);
    recording->GetLabelling().Label(segment, *dialog->GetSelectedLabel());
    recording->TellLabels();
}

bool SegmentEditor::findRows(LiveRecording* recording, int& from, int& to)
{
    if (!checkRecording(recording))
        return false;
    if (m_Plot->GetSelectedRange(from, to) && from < to)
        return true;
    int row = 0;
    const CutSegment* segment =
        m_Plot->GetSelectedRow(row) ? findSelected(*recording, row) : nullptr;
    if (!segment) {
        showInvalidSelection();
        return false;
    }
    from = segment->GetFrom();
    to = segment->GetTo();
    return true;
}

std::unique_ptr<PatternsDataObject> SegmentEditor::Save(LiveRecording* recording)
{
    int from = 0;
    int to = 0;
    return findRows(recording, from, to) ? SaveTemplate(m_Window, recording->GetDataSet(), from, to)
                                         : nullptr;
}

void SegmentEditor::AddTemplate(LiveRecording* recording)
{
    if (!checkRecording(recording))
        return;
    int from = 0;
    int to = 0;
    if (!m_Plot->GetSelectedRange(from, to) || to <= from) {
        ShowUserError(m_Window, tr("Error - Invalid Selection"),
                      tr("Invalid selection made. Please make a valid selection on the "
                         "time-series graph."));
        return;
    }
    qCDebug(lcSegments) << "toIndex " << to;
    SaveTemplate(m_Window, recording->GetDataSet(), from, to);
}

void SegmentEditor::Search(LiveRecording* recording)
{
    int from = 0;
    int to = 0;
    if (findRows(recording, from, to) &&
        SearchForRows(m_Window, recording->GetDataSet(), recording->GetCutCollection(), from, to))
        recording->TellSegments();
}

void SegmentEditor::Show(LiveRecording* recording)
{
    int row = 0;
    if (checkRecording(recording) && !m_Plot->GetSelectedRow(row))
        showInvalidSelection();
}

bool SegmentEditor::checkRecording(const LiveRecording* recording)
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
