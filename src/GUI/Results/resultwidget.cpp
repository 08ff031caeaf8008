#include "resultwidget.h"

#include "behaviorchoice.h"
#include "cutcollection.h"
#include "labelcollection.h"
#include "multiplelineplotwidget.h"
#include "panelbutton.h"
#include "segmentviews.h"
#include "templatesearch.h"
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

ResultWidget::ResultWidget(QWidget* parent)
    : SegmentPanel(tr("Results"), parent), m_SearchTools(makeSearchTools())
{
    groupLayout()->addLayout(makeButtons());
    layout()->addWidget(m_SearchTools);
    enableSearches();
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
    m_SearchTools->setEnabled(dataSet() && cuts());
}

void ResultWidget::openTemplateSearch()
{
    if (dataSet() && cuts() && SearchTemplates(this, dataSet(), cuts()))
        showNewResults();
}

void ResultWidget::openThresholdSearch()
{
    if (dataSet() && cuts() && SearchThresholds(this, dataSet(), cuts()))
        showNewResults();
}

void ResultWidget::openRuleAssociationSearch()
{
    if (dataSet() && cuts() && labels() && SearchRules(this, dataSet(), cuts(), labels()))
        showNewResults();
}

void ResultWidget::showNewResults()
{
    ClearAndUpdateSegments();
    emit SegmentsUpdated();
}

void ResultWidget::SetDataSet(DataSet* dataSet)
{
    SegmentPanel::SetDataSet(dataSet);
    enableSearches();
}

void ResultWidget::SetCutCollection(CutCollection* cuts)
{
    SegmentPanel::SetCutCollection(cuts);
    enableSearches();
}

void ResultWidget::Rebuild()
{
    views()->Clear();
    views()->RebuildAttributes();
    ClearAndUpdateSegments();
}

void ResultWidget::RemoveSegment(CutSegment* segment)
{
    views()->Remove({segment});
}

void ResultWidget::ClearAndUpdateSegments()
{
    if (!dataSet() || !cuts() || !labels())
        return;
    views()->Clear();
    synchronize();
}

void ResultWidget::synchronize()
{
    std::vector<ShownSegment> shown;
    for (CutSegment* segment : labelling().GetCandidates())
        shown.push_back({segment, Qt::gray, Qt::black});
    views()->Show(shown);
}

void ResultWidget::changeAttribute(int attribute)
{
    views()->ShowAttribute(attribute);
}

void ResultWidget::updateResultPlot()
{
    views()->GetOverlay()->RepaintLines();
}

void ResultWidget::moveSelectedResults()
{
    moveSelected();
}

void ResultWidget::acceptSegment(CutSegment* segment)
{
    moveSegments({segment});
}

// What is no candidate any more was decided on elsewhere.
void ResultWidget::moveInto(BehaviorLabel& behavior, const QList<CutSegment*>& segments)
{
    for (CutSegment* segment : segments) {
        if (segment->GetState() == CutSegment::SEGMENT_RESULT && cuts()->Contains(segment))
            labelling().Label(segment, behavior);
    }
    endMove(behavior.GetName());
}

void ResultWidget::moveAllResults()
{
    if (!CheckBehaviors(labels(), this) || labelling().GetCandidates().isEmpty())
        return;
    BehaviorLabel* behavior = AskForBehavior(labels(), this);
    if (!behavior || !labels() || labels()->IndexOf(behavior) == -1)
        return;
    const LiveRecording::Hold hold(recording());
    views()->Clear();
    labelling().LabelAll(labelling().GetCandidates(), *behavior);
    endMove(behavior->GetName());
}

void ResultWidget::endMove(const QString& behavior)
{
    emit SegmentsUpdated();
    emit MoveResults(behavior);
}

void ResultWidget::rejectSegment(CutSegment* segment)
{
    if (isAnswer())
        rejectInViews(segment);
}

// A row may still stand for a segment that was labelled elsewhere: that one stays.
void ResultWidget::reject(const QList<CutSegment*>& segments)
{
    labelling().Reject(segments);
    emit SegmentsUpdated();
}

void ResultWidget::removeAllResults()
{
    if (!cuts())
        return;
    const LiveRecording::Hold hold(recording());
    labelling().RejectAll();
    synchronize();
    emit SegmentsUpdated();
}
