#include "segmentpanel.h"

#include "behaviorchoice.h"
#include "multiplelineplotwidget.h"
#include "segmentviews.h"
#include "tableresultwidget.h"
#include "usererror.h"
#include <QGroupBox>
#include <QLoggingCategory>
#include <QVBoxLayout>

namespace
{

Q_LOGGING_CATEGORY(lcPanels, "skerrymoor.panels", QtWarningMsg)

} // namespace

SegmentPanel::SegmentPanel(const QString& title, QWidget* parent)
    : QWidget(parent), m_Views(new SegmentViews)
{
    auto* group = new QGroupBox(title);
    m_GroupLayout = new QVBoxLayout(group);
    m_GroupLayout->addWidget(m_Views, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(group, 1);
    connectViews();
}

void SegmentPanel::connectViews()
{
    TableResultWidget* table = m_Views->GetTable();
    connect(m_Views, &SegmentViews::AttributeChanged, m_Views, &SegmentViews::ShowAttribute);
    connect(table, &TableResultWidget::SegmentAccepted, this,
            [this](CutSegment* segment) { moveSegments({segment}); });
    connect(table, &TableResultWidget::SegmentRejected, this, &SegmentPanel::rejectInViews);
    connect(table, &TableResultWidget::SelectionRejected, this, &SegmentPanel::rejectSelected);
    connect(table, &TableResultWidget::NewResultsFound, this, &SegmentPanel::showNewResults);
    connect(table, &TableResultWidget::RemoveAndAddAll, this, &SegmentPanel::showMovedEnds);
    connect(table, &TableResultWidget::ShowSelected, this, &SegmentPanel::ShowSelected);
    connect(m_Views->GetOverlay(), &MultipleLinePlotWidget::SegmentRejected, this,
            &SegmentPanel::rejectInViews);
}

void SegmentPanel::SetRecording(LiveRecording* recording)
{
    if (m_Recording) {
        m_Recording->disconnect(this);
        disconnect(m_Recording);
    }
    m_Recording = recording;
    SetDataSet(DataOf(recording));
    SetCutCollection(CutsOf(recording));
    SetLabelCollection(LabelsOf(recording));
    synchronize();
    if (!recording)
        return;
    connect(this, &SegmentPanel::SegmentsUpdated, recording, &LiveRecording::TellLabels);
    connect(recording, &LiveRecording::SegmentsChanged, this, &SegmentPanel::synchronize);
    connect(recording, &LiveRecording::AttributesChanged, m_Views, &SegmentViews::UpdateAttributes);
}

void SegmentPanel::SetDataSet(DataSet* dataSet)
{
    m_DataSet = dataSet;
    m_Views->SetDataSet(dataSet);
}

void SegmentPanel::SetCutCollection(CutCollection* cuts)
{
    m_CutCollection = cuts;
    m_Views->SetCutCollection(cuts);
}

void SegmentPanel::SetLabelCollection(LabelCollection* labels)
{
    m_LabelCollection = labels;
}

void SegmentPanel::AddAttribute(int, const QString&)
{
    m_Views->UpdateAttributes();
}

void SegmentPanel::showMovedEnds()
{
    synchronize();
    emit SegmentsUpdated();
}

void SegmentPanel::moveSelected()
{
    if (!CheckBehaviors(m_LabelCollection, this))
        return;
    const QList<CutSegment*> selected = m_Views->GetTable()->SelectedSegments();
    if (selected.isEmpty())
        ShowUserError(this, tr("Move Labels"), tr("Error: No patterns selected."));
    else
        moveSegments(selected);
}

void SegmentPanel::moveSegments(const QList<CutSegment*>& segments)
{
    BehaviorLabel* behavior = AskForBehavior(m_LabelCollection, this);
    if (!behavior || !m_LabelCollection || m_LabelCollection->IndexOf(behavior) == -1)
        return;
    const LiveRecording::Hold hold(m_Recording);
    m_Views->Remove(segments);
    moveInto(*behavior, segments);
}

void SegmentPanel::rejectSelected()
{
    const QList<CutSegment*> selected = m_Views->GetTable()->SelectedSegments();
    if (selected.isEmpty())
        return;
    const LiveRecording::Hold hold(m_Recording);
    m_Views->Remove(selected);
    reject(selected);
}

void SegmentPanel::rejectInViews(CutSegment* segment)
{
    const LiveRecording::Hold hold(m_Recording);
    m_Views->Remove({segment});
    reject({segment});
}

bool SegmentPanel::isAnswer() const
{
    if (senderSignalIndex() == -1)
        qCDebug(lcPanels, "No view has sent the rejected segment");
    return senderSignalIndex() != -1;
}
