#include "resultwidget.h"

#include "behaviorchoice.h"
#include "cutcollection.h"
#include "labelcollection.h"
#include "labelsegment.h"
#include "multiplelineplotwidget.h"
#include "panelbutton.h"
#include "segmentviews.h"
#include "tableresultwidget.h"
#include "templatesearch.h"
#include "usererror.h"
#include <QGroupBox>
#include <QLoggingCategory>
#include <QPushButton>
#include <QSet>
#include <QVBoxLayout>

namespace
{

Q_LOGGING_CATEGORY(results, "skerrymoor.results", QtWarningMsg)

} // namespace

ResultWidget::ResultWidget(QWidget* parent)
    : QWidget(parent), m_Views(new SegmentViews), m_GraphOverlay(m_Views->GetOverlay()),
      m_Table(m_Views->GetTable())
{
    auto* group = new QGroupBox(tr("Results"));
    auto* inside = new QVBoxLayout(group);
    inside->addWidget(m_Views, 1);
    inside->addLayout(makeButtons());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(group, 1);
    m_SearchTools = makeSearchTools();
    layout->addWidget(m_SearchTools);
    enableSearches();
    connectViews();
}

QLayout* ResultWidget::makeButtons()
{
    QPushButton* moveSelected = MakePanelButton(
        tr("Move Selected"), tr("Move the results of the selected rows into a behavior"));
    QPushButton* moveAll = MakePanelButton(tr("Move All"), tr("Move all results into a behavior"));
    QPushButton* removeAll = MakePanelButton(tr("Remove All"), tr("Reject the results"));
    connect(moveSelected, &QPushButton::clicked, this, &ResultWidget::moveSelectedResults);
    connect(moveAll, &QPushButton::clicked, this, &ResultWidget::moveAllResults);
    connect(removeAll, &QPushButton::clicked, this, &ResultWidget::removeAllResults);

    auto* row = new QHBoxLayout;
    row->addWidget(moveSelected);
    row->addWidget(moveAll);
    row->addWidget(removeAll);
    row->addStretch();
    return row;
}

QWidget* ResultWidget::makeSearchTools()
{
    struct Search {
        const char* m_Text;
        const char* m_Icon;
        const char* m_ToolTip;
        void (ResultWidget::*m_Slot)();
    };
    static const Search searches[]{
        {"Template Search", "icons/wizard.png", "Find what looks like a stored template",
         &ResultWidget::openTemplateSearch},
        {"Threshold", "icons/threshold.png", "Find rows by the values of attributes",
         &ResultWidget::openThresholdSearch},
        {"Rule Association", "icons/rule.png", "Find what follows a sequence of behaviours",
         &ResultWidget::openRuleAssociationSearch},
    };
    auto* group = new QGroupBox(tr("Search Tools"));
    auto* row = new QHBoxLayout(group);
    for (const Search& search : searches) {
        QPushButton* button =
            MakePanelButton(tr(search.m_Text), tr(search.m_ToolTip), QLatin1String(search.m_Icon));
        connect(button, &QPushButton::clicked, this, search.m_Slot);
        row->addWidget(button);
    }
    row->addStretch();
    return group;
}

void ResultWidget::enableSearches()
{
    m_SearchTools->setEnabled(m_DataSet && m_CutCollection);
}

void ResultWidget::openTemplateSearch()
{
    if (m_DataSet && m_CutCollection && SearchTemplates(this, m_DataSet, m_CutCollection))
        showNewResults();
}

void ResultWidget::openThresholdSearch()
{
    if (m_DataSet && m_CutCollection && SearchThresholds(this, m_DataSet, m_CutCollection))
        showNewResults();
}

void ResultWidget::openRuleAssociationSearch()
{
    if (m_DataSet && m_CutCollection && m_LabelCollection &&
        SearchRules(this, m_DataSet, m_CutCollection, m_LabelCollection))
        showNewResults();
}

void ResultWidget::showNewResults()
{
    ClearAndUpdateSegments();
    emit SegmentsUpdated();
}

void ResultWidget::connectViews()
{
    connect(m_Views, &SegmentViews::AttributeChanged, this, &ResultWidget::changeAttribute);
    connect(m_Table, &TableResultWidget::SegmentAccepted, this, &ResultWidget::acceptSegment);
    connect(m_Table, &TableResultWidget::SegmentRejected, this, &ResultWidget::rejectSegment);
    connect(m_Table, &TableResultWidget::SelectionRejected, this,
            &ResultWidget::rejectSelectedResults);
    connect(m_Table, &TableResultWidget::NewResultsFound, this, &ResultWidget::showNewResults);
    connect(m_Table, &TableResultWidget::RemoveAndAddAll, this,
            &ResultWidget::ClearAndUpdateSegments);
    connect(m_Table, &TableResultWidget::RemoveAndAddAll, this, &ResultWidget::SegmentsMoved);
    connect(m_Table, &TableResultWidget::RemoveAndAddAll, this, &ResultWidget::SegmentsUpdated);
    connect(m_Table, &TableResultWidget::ShowSelected, this, &ResultWidget::ShowSelected);
    connect(m_GraphOverlay, &MultipleLinePlotWidget::SegmentRejected, this,
            &ResultWidget::rejectSegment);
}

void ResultWidget::SetDataSet(DataSet* dataSet)
{
    m_DataSet = dataSet;
    m_Views->SetDataSet(dataSet);
    enableSearches();
}

void ResultWidget::SetCutCollection(CutCollection* cuts)
{
    m_CutCollection = cuts;
    m_Views->SetCutCollection(cuts);
    enableSearches();
}

void ResultWidget::SetLabelCollection(LabelCollection* labels)
{
    m_LabelCollection = labels;
}

void ResultWidget::Rebuild()
{
    m_Views->Clear();
    m_Views->RebuildAttributes();
    ClearAndUpdateSegments();
}

void ResultWidget::AddAttribute(int index, const QString& name)
{
    m_Views->AddAttribute(index, name);
}

void ResultWidget::RemoveSegment(CutSegment* segment)
{
    m_Views->Remove({segment});
}

void ResultWidget::ClearAndUpdateSegments()
{
    if (!m_DataSet || !m_CutCollection || !m_LabelCollection)
        return;
    m_Views->Clear();
    m_Views->BeginBulk();
    for (CutSegment* segment : candidates())
        m_Views->Add(segment, Qt::gray, Qt::black);
    m_Views->EndBulk();
}

QList<CutSegment*> ResultWidget::candidates() const
{
    QList<CutSegment*> found;
    for (int i = 0; m_CutCollection && i < m_CutCollection->GetSegmentCount(); ++i) {
        CutSegment* segment = m_CutCollection->GetSegment(i);
        if (segment->GetState() == CutSegment::SEGMENT_RESULT)
            found.append(segment);
    }
    return found;
}

void ResultWidget::changeAttribute(int attribute)
{
    m_Views->ShowAttribute(attribute);
}

void ResultWidget::updateResultPlot()
{
    m_GraphOverlay->RepaintLines();
}

void ResultWidget::moveSelectedResults()
{
    if (!CheckBehaviors(m_LabelCollection, this))
        return;
    const QList<CutSegment*> selected = m_Table->SelectedSegments();
    if (selected.isEmpty())
        ShowUserError(this, tr("Move Labels"), tr("Error: No patterns selected."));
    else
        moveSegments(selected);
}

void ResultWidget::acceptSegment(CutSegment* segment)
{
    moveSegments({segment});
}

void ResultWidget::moveSegments(const QList<CutSegment*>& segments)
{
    BehaviorLabel* label = AskForBehavior(m_LabelCollection, this);
    if (!label || !HasBehavior(m_LabelCollection, label))
        return;
    m_Views->Remove(segments);
    // What is no candidate any more was decided on elsewhere.
    const QList<CutSegment*> all = candidates();
    const QSet<CutSegment*> undecided(all.begin(), all.end());
    for (CutSegment* segment : segments) {
        if (undecided.contains(segment))
            LabelSegment(*label, segment);
    }
    endMove(label->GetName());
}

void ResultWidget::moveAllResults()
{
    if (!CheckBehaviors(m_LabelCollection, this) || candidates().isEmpty())
        return;
    BehaviorLabel* label = AskForBehavior(m_LabelCollection, this);
    if (!label || !HasBehavior(m_LabelCollection, label))
        return;
    m_Views->Clear();
    QList<LabelInstance*> instances;
    for (CutSegment* segment : candidates())
        instances.append(MakeInstance(*label, segment));
    label->AddLabels(instances);
    endMove(label->GetName());
}

void ResultWidget::endMove(const QString& behavior)
{
    emit SegmentsUpdated();
    emit MoveResults(behavior);
}

void ResultWidget::rejectSegment(CutSegment* segment)
{
    if (!sender()) {
        qCDebug(results, "No view has sent the rejected segment");
        return;
    }
    m_Views->RemoveFromOthers(segment, sender());
    rejectCandidate(segment);
    emit SegmentsUpdated();
}

void ResultWidget::rejectSelectedResults()
{
    const QList<CutSegment*> selected = m_Table->SelectedSegments();
    if (selected.isEmpty())
        return;
    m_Views->Remove(selected);
    for (CutSegment* segment : selected)
        rejectCandidate(segment);
    emit SegmentsUpdated();
}

void ResultWidget::rejectCandidate(CutSegment* segment)
{
    // A row may still stand for a segment that was labelled elsewhere: that one stays.
    if (m_CutCollection && segment->GetState() == CutSegment::SEGMENT_RESULT)
        m_CutCollection->RemoveSegment(segment);
}

void ResultWidget::removeAllResults()
{
    if (!m_CutCollection)
        return;
    QList<CutSegment*> removed;
    // The index is not set back after a removal: kept, the next press takes the rest.
    for (int i = 0; i < m_CutCollection->GetSegmentCount(); ++i) {
        CutSegment* segment = m_CutCollection->GetSegment(i);
        if (segment->GetState() != CutSegment::SEGMENT_RESULT)
            continue;
        removed.append(segment);
        m_CutCollection->RemoveSegment(segment);
    }
    m_Views->Remove(removed);
    emit SegmentsUpdated();
}
