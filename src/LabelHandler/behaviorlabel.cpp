#include "behaviorlabel.h"

#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcLabels, "skerrymoor.labels", QtWarningMsg)

BehaviorLabel::BehaviorLabel(const QString& name, const QColor& color)
    : m_Name(name), m_Color(color)
{
}

BehaviorLabel::~BehaviorLabel()
{
    qDeleteAll(m_Owned);
}

void BehaviorLabel::AddLabel(LabelInstance* instance)
{
    AddLabelQuietly(instance);
    emit CutAdded(instance->GetSegment());
}

void BehaviorLabel::AddLabelQuietly(LabelInstance* instance)
{
    takeOwnership(instance);
    m_Instances.Append(instance);
}

void BehaviorLabel::takeOwnership(LabelInstance* instance)
{
    BehaviorLabel* owner = instance->GetLabel();
    if (owner && owner != this) {
        while (owner->RemoveInstance(instance)) {
        }
        owner->m_Owned.remove(instance);
    }
    instance->SetLabel(this);
    m_Owned.insert(instance);
}

void BehaviorLabel::AddLabels(const QList<LabelInstance*>& instances)
{
    QList<CutSegment*> segments;
    for (LabelInstance* instance : instances) {
        AddLabelQuietly(instance);
        segments.append(instance->GetSegment());
    }
    emit CutsAdded(segments);
}

bool BehaviorLabel::RemoveLabel(CutSegment* segment)
{
    if (!Contains(segment))
        return false;
    qCDebug(lcLabels, "Emit cut removed");
    emit CutRemoved(segment);
    return RemoveLabelQuietly(segment);
}

bool BehaviorLabel::RemoveLabelQuietly(CutSegment* segment)
{
    const int index = m_Instances.FindSegment(segment);
    if (index == -1)
        return false;
    m_Instances.RemoveAt(index);
    return true;
}

bool BehaviorLabel::RemoveInstance(LabelInstance* instance)
{
    const int index = instance ? m_Instances.IndexOf(instance) : -1;
    if (index == -1)
        return false;
    m_Instances.RemoveAt(index);
    return true;
}

void BehaviorLabel::SegmentChanged(LabelInstance* instance, CutSegment* segment)
{
    m_Instances.SegmentChanged(instance, segment);
}
