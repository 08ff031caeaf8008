#include "behaviorlabel.h"

#include <QLoggingCategory>
#include <algorithm>

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
    m_Instances.append(instance);
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

bool BehaviorLabel::Contains(CutSegment* segment) const
{
    return indexOf(segment) != -1;
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
    const int index = indexOf(segment);
    if (index == -1)
        return false;
    m_Instances.removeAt(index);
    return true;
}

int BehaviorLabel::indexOf(const CutSegment* segment) const
{
    const auto found =
        std::find_if(m_Instances.begin(), m_Instances.end(), [=](const LabelInstance* instance) {
            return instance->GetSegment() == segment;
        });
    return found == m_Instances.end() ? -1 : int(found - m_Instances.begin());
}
