#include "classwidget.h"

#include "behaviorchoice.h"
#include "cutcollection.h"
#include "labelcollection.h"
#include "labellinegraphwidget.h"
#include "labelsegment.h"
#include "multiplelineplotwidget.h"
#include "panelbutton.h"
#include "segmentviews.h"
#include "tableresultwidget.h"
#include "usererror.h"
#include <QDropEvent>
#include <QGroupBox>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

Q_LOGGING_CATEGORY(classes, "skerrymoor.classes", QtWarningMsg)

QString dragFormat()
{
    return QStringLiteral("signal_start_end");
}

// What another program drags comes in a class of its own; its index means other segments.
bool isOurDrag(const QMimeData* data)
{
    return data && data->hasFormat(dragFormat()) &&
           data->metaObject() == &QMimeData::staticMetaObject;
}

} // namespace

ClassWidget::ClassWidget(QWidget* parent)
    : QWidget(parent), m_Views(new SegmentViews), m_Overlay(m_Views->GetOverlay()),
      m_Table(m_Views->GetTable())
{
    auto* graphs = new LabelLineGraphWidget(m_Table->GetModel());
    m_Views->AddLayout(tr("Small Graphs"), graphs);
    connect(graphs, &LabelLineGraphWidget::ShowSelected, this, &ClassWidget::ShowSelected);

    auto* group = new QGroupBox(tr("Classified Signals"));
    auto* inside = new QVBoxLayout(group);
    inside->addWidget(m_Views, 1);
    inside->addLayout(makeButtons());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(group);
    setAcceptDrops(true);
    connectViews();
}

QLayout* ClassWidget::makeButtons()
{
    QPushButton* move =
        MakePanelButton(tr("Move"), tr("Move the selected rows into another behavior"));
    QPushButton* reject =
        MakePanelButton(tr("Remove Labels"), tr("Take the labels of the selected rows away"));
    connect(move, &QPushButton::clicked, this, &ClassWidget::moveSelected);
    connect(reject, &QPushButton::clicked, this, &ClassWidget::rejectSelected);

    auto* row = new QHBoxLayout;
    row->addWidget(move);
    row->addWidget(reject);
    row->addStretch();
    return row;
}

void ClassWidget::connectViews()
{
    connect(m_Views, &SegmentViews::AttributeChanged, this, &ClassWidget::changeAttribute);
    connect(m_Table, &TableResultWidget::SegmentAccepted, this, &ClassWidget::acceptSegment);
    connect(m_Table, &TableResultWidget::SegmentRejected, this, &ClassWidget::rejectSegment);
    connect(m_Table, &TableResultWidget::SelectionRejected, this, &ClassWidget::rejectSelected);
    connect(m_Table, &TableResultWidget::NewResultsFound, this, &ClassWidget::NewResultsFound);
    connect(m_Table, &TableResultWidget::RemoveAndAddAll, this, &ClassWidget::removeAndAddAll);
    connect(m_Table, &TableResultWidget::RemoveAndAddAll, this, &ClassWidget::SegmentsMoved);
    connect(m_Table, &TableResultWidget::RemoveAndAddAll, this, &ClassWidget::SegmentsUpdated);
    connect(m_Table, &TableResultWidget::ShowSelected, this, &ClassWidget::ShowSelected);
    connect(m_Overlay, &MultipleLinePlotWidget::SegmentRejected, this, &ClassWidget::rejectSegment);
}

void ClassWidget::SetDataSet(DataSet* dataSet)
{
    m_DataSet = dataSet;
    m_Views->SetDataSet(dataSet);
    removeAndAddAll();
}

void ClassWidget::SetCutCollection(CutCollection* cuts)
{
    m_CutCollection = cuts;
    m_Views->SetCutCollection(cuts);
    removeAndAddAll();
}

void ClassWidget::SetLabelCollection(LabelCollection* labels)
{
    m_LabelCollection = labels;
}

void ClassWidget::SetLabel(BehaviorLabel* label)
{
    if (m_Label)
        disconnect(m_Label, nullptr, this, nullptr);
    m_Label = label;
    if (label) {
        connect(label, &BehaviorLabel::CutRemoved, this, &ClassWidget::rejectSegment);
        connect(label, &BehaviorLabel::CutAdded, this, &ClassWidget::addSegment);
        connect(label, &BehaviorLabel::CutsAdded, this, &ClassWidget::addSegments);
        connect(label, &QObject::destroyed, m_Views, &SegmentViews::Clear);
    }
    removeAndAddAll();
}

void ClassWidget::AddAttribute(int index, const QString& name)
{
    m_Views->AddAttribute(index, name);
}

void ClassWidget::removeAndAddAll()
{
    m_Views->Clear();
    if (!m_Label)
        return;
    m_Views->BeginBulk();
    for (int i = 0; i < m_Label->GetInstanceCount(); ++i)
        addToViews(m_Label->GetInstance(i)->GetSegment());
    m_Views->EndBulk();
}

void ClassWidget::addSegment(CutSegment* segment)
{
    addToViews(segment);
    updateResultPlot();
}

void ClassWidget::addSegments(QList<CutSegment*> segments)
{
    m_Views->BeginBulk();
    for (CutSegment* segment : qAsConst(segments))
        addToViews(segment);
    m_Views->EndBulk();
}

void ClassWidget::addToViews(CutSegment* segment)
{
    if (m_Label)
        m_Views->Add(segment, m_Label->GetColor(), m_Label->GetColor());
}

void ClassWidget::changeAttribute(int attribute)
{
    m_Views->ShowAttribute(attribute);
}

void ClassWidget::updateResultPlot()
{
    m_Overlay->RepaintLines();
}

void ClassWidget::rejectSegment(CutSegment* segment)
{
    if (!sender()) {
        qCDebug(classes, "No view has sent the rejected segment");
        return;
    }
    m_Views->RemoveFromOthers(segment, sender());
    // A row may still stand for a segment that has gone to another behaviour.
    if (!m_Label || !m_Label->Contains(segment))
        return;
    segment->SetState(CutSegment::SEGMENT_CUT);
    // A behaviour that says so takes the segment off its list itself.
    if (sender() != m_Label)
        m_Label->RemoveLabelQuietly(segment);
    emit SegmentsUpdated();
}

void ClassWidget::acceptSegment(CutSegment* segment)
{
    moveSegments({segment});
}

void ClassWidget::moveSelected()
{
    const QList<CutSegment*> selected = m_Table->SelectedSegments();
    if (selected.isEmpty())
        ShowUserError(this, tr("Move Labels"), tr("Error: No patterns selected."));
    else
        moveSegments(selected);
}

void ClassWidget::moveSegments(const QList<CutSegment*>& segments)
{
    BehaviorLabel* target = AskForBehavior(m_LabelCollection, this);
    if (!target || !m_Label || !HasBehavior(m_LabelCollection, target))
        return;
    m_Views->Remove(segments);
    QList<LabelInstance*> instances;
    for (CutSegment* segment : segments) {
        if (m_Label->RemoveLabelQuietly(segment))
            instances.append(MakeInstance(*target, segment));
    }
    if (instances.size() == 1)
        target->AddLabel(instances.first());
    else
        target->AddLabels(instances);
    emit SegmentsUpdated();
}

void ClassWidget::rejectSelected()
{
    const QList<CutSegment*> selected = m_Table->SelectedSegments();
    if (selected.isEmpty())
        return;
    m_Views->Remove(selected);
    for (CutSegment* segment : selected) {
        if (m_Label && m_Label->RemoveLabelQuietly(segment))
            segment->SetState(CutSegment::SEGMENT_CUT);
    }
    emit SegmentsUpdated();
}

void ClassWidget::dragEnterEvent(QDragEnterEvent* event)
{
    if (m_Label && isOurDrag(event->mimeData()))
        event->acceptProposedAction();
}

void ClassWidget::dropEvent(QDropEvent* event)
{
    CutSegment* segment = droppedSegment(*event);
    if (!segment || !m_Label || m_Label->Contains(segment))
        return;
    const bool wasResult = segment->GetState() == CutSegment::SEGMENT_RESULT;
    if (segment->GetState() == CutSegment::SEGMENT_LABELED && !releaseFromOldLabel(segment))
        return;
    takeIn(segment);
    event->acceptProposedAction();
    emit SegmentsUpdated();
    // The list of results is one shorter.
    if (wasResult)
        emit NewResultsFound();
}

CutSegment* ClassWidget::droppedSegment(const QDropEvent& event) const
{
    if (!m_CutCollection || !isOurDrag(event.mimeData()))
        return nullptr;
    bool isNumber = false;
    const int index = event.mimeData()->data(dragFormat()).toInt(&isNumber);
    if (!isNumber || index < 0 || index >= m_CutCollection->GetSegmentCount())
        return nullptr;
    return m_CutCollection->GetSegment(index);
}

bool ClassWidget::releaseFromOldLabel(CutSegment* segment)
{
    const QString question = tr("Are you sure you want change the selected cuts classification?");
    const QPointer<ClassWidget> self(this);
    const CutCollection* cuts = m_CutCollection;
    if (QMessageBox::question(this, tr("Change Classification"), question) != QMessageBox::Yes)
        return false;
    if (!self || !m_Label || m_CutCollection != cuts || m_Label->Contains(segment))
        return false;
    if (m_LabelCollection)
        m_LabelCollection->RemoveCut(segment);
    return true;
}

void ClassWidget::takeIn(CutSegment* segment)
{
    m_Label->AddLabelQuietly(MakeInstance(*m_Label, segment));
    addSegment(segment);
}
