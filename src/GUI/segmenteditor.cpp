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
    if (const auto rows = m_Plot->GetSelectedRange()) {
        recording->GetCutCollection()->InsertCut(rows->m_From, rows->m_To, CutSegment::SEGMENT_CUT);
        qCDebug(lcSegments) << "from index: " << rows->m_From;
        qCDebug(lcSegments) << "to index: " << rows->m_To;
    } else if (const auto row = m_Plot->GetSelectedRow()) {
        recording->GetCutCollection()->InsertCut(*row, CutSegment::SEGMENT_CUT);
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
    const std::optional<RowSpan> rows = m_Plot->GetSelectedRange();
    if (!rows) {
        showInvalidSelection();
        return;
    }
    recording->GetCutCollection()->MergeCuts(rows->m_From, rows->m_To);
    // Labelled segments may be among those that are gone.
    recording->TellLabels();
}

void SegmentEditor::Delete(LiveRecording* recording)
{
    if (!checkRecording(recording))
        return;
    const std::optional<QList<CutSegment*>> segments = findSelected(*recording);
    if (!segments)
        showInvalidSelection();
    if (!segments || segments->isEmpty())
        return;
    const LiveRecording::Hold hold(recording);
    recording->GetLabelling().Unlabel(*segments);
    if (!recording->GetLabelling().Reject(*segments).IsEmpty())
        qCDebug(lcSegments) << "Removing currently labeling";
    recording->TellLabels();
}

// The segments of what is selected, none when nothing is.
std::optional<QList<CutSegment*>> SegmentEditor::findSelected(LiveRecording& recording) const
{
    if (const auto rows = m_Plot->GetSelectedRange())
        return recording.GetCutCollection()->GetSegments(rows->m_From, rows->m_To);
    const std::optional<int> row = m_Plot->GetSelectedRow();
    if (!row)
        return std::nullopt;
    if (CutSegment* segment = findSegment(recording, *row))
        return QList<CutSegment*>{segment};
    qCDebug(lcSegments) << "No cut found";
    return QList<CutSegment*>();
}

CutSegment* SegmentEditor::findSegment(LiveRecording& recording, int row) const
{
    int index = 0;
    return recording.GetCutCollection()->FindSegment(row, index);
}

void SegmentEditor::Move(LiveRecording* recording)
{
    if (!checkRecording(recording))
        return;
    const std::optional<int> row = m_Plot->GetSelectedRow();
    if (!row) {
        showInvalidSelection();
        return;
    }
    CutSegment* segment = findSegment(*recording, *row);
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

std::optional<RowSpan> SegmentEditor::findRows(LiveRecording* recording)
{
    if (!checkRecording(recording))
        return std::nullopt;
    const std::optional<RowSpan> rows = m_Plot->GetSelectedRange();
    if (rows && !rows->IsEmpty())
        return rows;
    const std::optional<int> row = m_Plot->GetSelectedRow();
    const CutSegment* segment = row ? findSegment(*recording, *row) : nullptr;
    if (!segment) {
        showInvalidSelection();
        return std::nullopt;
    }
    return RowSpan{segment->GetFrom(), segment->GetTo()};
}

std::unique_ptr<PatternsDataObject> SegmentEditor::Save(LiveRecording* recording)
{
    const std::optional<RowSpan> rows = findRows(recording);
    return rows ? SaveTemplate(m_Window, recording->GetDataSet(), rows->m_From, rows->m_To)
                : nullptr;
}

void SegmentEditor::AddTemplate(LiveRecording* recording)
{
    if (!checkRecording(recording))
        return;
    const RowSpan rows = m_Plot->GetSelectedRange().value_or(RowSpan());
    if (rows.IsEmpty()) {
        ShowUserError(m_Window, tr("Error - Invalid Selection"),
                      tr("Invalid selection made. Please make a valid selection on the "
                         "time-series graph."));
        return;
    }
    qCDebug(lcSegments) << "toIndex " << rows.m_To;
    SaveTemplate(m_Window, recording->GetDataSet(), rows.m_From, rows.m_To);
}

void SegmentEditor::Search(LiveRecording* recording)
{
    const std::optional<RowSpan> rows = findRows(recording);
    if (rows && SearchForRows(m_Window, recording->GetDataSet(), recording->GetCutCollection(),
                              rows->m_From, rows->m_To))
        recording->TellSegments();
}

void SegmentEditor::Show(LiveRecording* recording)
{
    if (checkRecording(recording) && !m_Plot->GetSelectedRow())
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
