#include "groundtruithbehaviorcollection.h"

void GroundTruithBehaviorCollection::Add(const QString& name, GroundTruithInstance* instance)
{
    m_Owned.emplace_back(instance);
    QList<GroundTruithInstance*>& instances = m_Instances[name];
    if (instances.isEmpty())
        m_Names.append(name);
    instances.append(instance);
}

const QList<GroundTruithInstance*>* GroundTruithBehaviorCollection::Get(const QString& name) const
{
    const auto found = m_Instances.find(name);
    return found == m_Instances.end() ? nullptr : &found->second;
}
