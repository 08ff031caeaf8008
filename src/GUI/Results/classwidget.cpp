#include "classwidget.h"

#include "askuser.h"
#include "cutcollection.h"
#include "labellinegraphwidget.h"
#include "multiplelineplotwidget.h"
#include "panelbutton.h"
#include "segmentviews.h"
#include "tableresultwidget.h"
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

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

ClassWidget::ClassWidget(QWidget* parent) : SegmentPanel(tr("Classified Signals"), parent)
{
    auto* graphs = new LabelLineGraphWidget(views()->GetTable()->GetModel());
    views()->AddLayout(tr("Small Graphs"), graphs);
    connect(graphs, &LabelLineGraphWidget::ShowSelected, this, &ClassWidget::ShowSelected);
    groupLayout()->addLayout(makeButtons());
    setAcceptDrops(true);
}

QLayout* ClassWidget::makeButtons()
{
    QPushButton* move =
        MakePanelButton(tr("Move"), tr("Move the selected rows into another behavior"));
    QPushButton* remove =
        MakePanelButton(tr("Remove Labels"), tr("Take the labels of the selected rows away"));
    connect(move, &QPushButton::clicked, this, &ClassWidget::moveSelected);
    connect(remove, &QPushButton::clicked, this, &ClassWidget::rejectSelected);

    auto* row = new QHBoxLayout;
    row->addWidget(move);
    row->addWidget(remove);
    row->addStretch();
    return row;
}

void ClassWidget::SetDataSet(DataSet* dataSet)
{
    SegmentPanel::SetDataSet(dataSet);
    removeAndAddAll();
}

void ClassWidget::SetCutCollection(CutCollection* cuts)
{
    SegmentPanel::SetCutCollection(cuts);
    removeAndAddAll();
}

void ClassWidget::SetLabel(BehaviorLabel* label)
{
    if (m_Label)
        disconnect(m_Label, nullptr, this, nullptr);
    m_Label = label;
    if (label) {
        connect(label, &BehaviorLabel::CutRemoved, this, &ClassWidget::letGo);
        connect(label, &BehaviorLabel::CutAdded, this, &ClassWidget::addSegment);
        connect(label, &BehaviorLabel::CutsAdded, this, &ClassWidget::addSegments);
        connect(label, &QObject::destroyed, views(), &SegmentViews::Clear);
    }
    removeAndAddAll();
}

ShownSegment ClassWidget::shown(CutSegment* segment) const
{
    return {segment, m_Label->GetColor(), m_Label->GetColor()};
}

void ClassWidget::synchronize()
{
    std::vector<ShownSegment> instances;
    for (int i = 0; m_Label && i < m_Label->GetInstanceCount(); ++i)
        instances.push_back(shown(m_Label->GetInstance(i)->GetSegment()));
    views()->Show(instances);
}

void ClassWidget::removeAndAddAll()
{
    views()->Clear();
    synchronize();
}

void ClassWidget::addSegment(CutSegment* segment)
{
    addSegments({segment});
}

void ClassWidget::addSegments(QList<CutSegment*> segments)
{
    if (!m_Label)
        return;
    if (segments.size() > 1)
        views()->BeginBulk();
    for (CutSegment* segment : qAsConst(segments))
        views()->Add(shown(segment));
    views()->EndBulk();
}

void ClassWidget::changeAttribute(int attribute)
{
    views()->ShowAttribute(attribute);
}

void ClassWidget::updateResultPlot()
{
    views()->GetOverlay()->RepaintLines();
}

void ClassWidget::showNewResults()
{
    if (recording())
        recording()->TellSegments();
    emit NewResultsFound();
}

// The behaviour takes the segment off its list itself.
void ClassWidget::letGo(CutSegment* segment)
{
    views()->Remove({segment});
    segment->SetState(CutSegment::SEGMENT_CUT);
    emit SegmentsUpdated();
}

void ClassWidget::rejectSegment(CutSegment* segment)
{
    if (isAnswer())
        rejectInViews(segment);
}

// A row may still stand for a segment that has gone to another behaviour: that one stays there.
void ClassWidget::reject(const QList<CutSegment*>& segments)
{
    if (m_Label && !labelling().UnlabelFrom(*m_Label, segments, Labelling::TELL_NOBODY).IsEmpty())
        emit SegmentsUpdated();
}

void ClassWidget::acceptSegment(CutSegment* segment)
{
    moveSegments({segment});
}

void ClassWidget::moveInto(BehaviorLabel& behavior, const QList<CutSegment*>& segments)
{
    QList<CutSegment*> own;
    std::copy_if(segments.begin(), segments.end(), std::back_inserter(own),
                 [this](CutSegment* segment) { return m_Label && m_Label->Contains(segment); });
    labelling().LabelAll(own, behavior, Labelling::TELL_NEW);
    synchronize();
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
    if (!segment || !m_Label || m_Label->Contains(segment) || !agreesToChange(*segment))
        return;
    const LiveRecording::Hold hold(recording());
    const bool wasResult = segment->GetState() == CutSegment::SEGMENT_RESULT;
    labelling().Label(segment, *m_Label, Labelling::TELL_OLD);
    addSegment(segment);
    event->acceptProposedAction();
    emit SegmentsUpdated();
    // The list of results is one shorter.
    if (wasResult)
        emit NewResultsFound();
}

CutSegment* ClassWidget::droppedSegment(const QDropEvent& event) const
{
    if (!cuts() || !isOurDrag(event.mimeData()))
        return nullptr;
    bool isNumber = false;
    const int index = event.mimeData()->data(dragFormat()).toInt(&isNumber);
    if (!isNumber || index < 0 || index >= cuts()->GetSegmentCount())
        return nullptr;
    return cuts()->GetSegment(index);
}

bool ClassWidget::agreesToChange(const CutSegment& segment)
{
    if (segment.GetState() != CutSegment::SEGMENT_LABELED)
        return true;
    const QPointer<ClassWidget> self(this);
    const CutCollection* asked = cuts();
    return AskYesNo(this, tr("Change Classification"),
                    tr("Are you sure you want change the selected cuts classification?")) &&
           self && m_Label && cuts() == asked && !m_Label->Contains(&segment);
}
