#include "labelcollection.h"

#include <algorithm>

LabelCollection::~LabelCollection()
{
    for (const auto& label : m_Owned)
        delete label;
}

void LabelCollection::AddLabel(BehaviorLabel* label)
{
    m_Labels.append(label);
    m_Owned.emplace_back(label);
}

BehaviorLabel* LabelCollection::FindLabel(const QString& name) const
{
    const auto found =
        std::find_if(m_Labels.begin(), m_Labels.end(),
                     [&](const BehaviorLabel* label) { return label->GetName() == name; });
    return found == m_Labels.end() ? nullptr : *found;
}

int LabelCollection::IndexOf(const BehaviorLabel* label) const
{
    const auto found = std::find(m_Labels.begin(), m_Labels.end(), label);
    return found == m_Labels.end() ? -1 : int(found - m_Labels.begin());
}

bool LabelCollection::RemoveCut(CutSegment* segment)
{
    const auto found =
        std::find_if(m_Labels.begin(), m_Labels.end(),
                     [=](const BehaviorLabel* label) { return label->Contains(segment); });
    return found != m_Labels.end() && (*found)->RemoveLabel(segment);
}
