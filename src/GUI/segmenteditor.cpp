#include "segmenteditor.h"

#include "behaviorselectiondialog.h"
#include "cuttablelineplotwidget.h"
#include "labelsegment.h"
#include "overviewtimelinewidget.h"
#include "patternsdataobject.h"
#include "recording.h"
#include "resultwidget.h"
#include "templatesearch.h"
#include "usererror.h"
#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcSegments, "skerrymoor.segments", QtWarningMsg)

void SegmentEditor::Cut(Recording* recording)
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

void SegmentEditor::Delete(Recording* recording)
{
    if (!checkRecording(recording))
        return;
    QList<CutSegment*> segments;
    int from = 0;
    int to = 0;
    if (m_Plot->GetSelectedRange(from, to)) {
        segments = recording->GetCutCollection()->GetSegments(from, to);
    } else if (m_Plot->GetSelectedRow(from)) {
        if (CutSegment* segment = findSelected(*recording, from))
            segments.append(segment);
        else
            qCDebug(lcSegments) << "No cut found";
    } else {
        showInvalidSelection();
        return;
    }
    if (segments.isEmpty())
        return;
    for (CutSegment* segment : segments)
        removeLabel(*recording, segment);
    for (CutSegment* segment : segments)
        removeResult(*recording, segment);
    showChange();
}

void SegmentEditor::removeLabel(Recording& recording, CutSegment* segment)
{
    // The class view sees the segment go and makes it a plain cut.
    if (segment->GetState() == CutSegment::SEGMENT_LABELED)
        recording.GetLabelCollection()->RemoveCut(segment);
}

void SegmentEditor::removeResult(Recording& recording, CutSegment* segment)
{
    if (segment->GetState() != CutSegment::SEGMENT_RESULT)
        return;
    qCDebug(lcSegments) << "Removing currently labeling";
    m_Results->RemoveSegment(segment);
    recording.GetCutCollection()->RemoveSegment(segment);
}

CutSegment* SegmentEditor::findSelected(Recording& recording, int row) const
{
    int index = 0;
    return recording.GetCutCollection()->FindSegment(row, index);
}

void SegmentEditor::Move(Recording* recording)
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
    BehaviorSelectionDialog dialog(m_Window);
    dialog.setWindowTitle(tr("Select Behavior"));
    dialog.SetLabelCollection(recording->GetLabelCollection());
    if (dialog.exec() != QDialog::Accepted || !dialog.GetSelectedLabel())
        return;
    // The segment may have gone while the dialog was open.
    if (!recording->GetCutCollection()->Contains(segment))
        return;
    removeLabel(*recording, segment);
    if (segment->GetState() == CutSegment::SEGMENT_RESULT)
        m_Results->RemoveSegment(segment);
    LabelSegment(*dialog.GetSelectedLabel(), segment);
    showChange();
}

bool SegmentEditor::findRows(Recording* recording, int& from, int& to)
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

std::unique_ptr<PatternsDataObject> SegmentEditor::Save(Recording* recording)
{
    int from = 0;
    int to = 0;
    return findRows(recording, from, to) ? SaveTemplate(m_Window, recording->GetDataSet(), from, to)
                                         : nullptr;
}

void SegmentEditor::AddTemplate(Recording* recording)
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

bool SegmentEditor::Search(Recording* recording)
{
    int from = 0;
    int to = 0;
    return findRows(recording, from, to) && SearchForRows(m_Window, recording->GetDataSet(),
                                                          recording->GetCutCollection(), from, to);
}

void SegmentEditor::Show(Recording* recording)
{
    int row = 0;
    if (checkRecording(recording) && !m_Plot->GetSelectedRow(row))
        showInvalidSelection();
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
