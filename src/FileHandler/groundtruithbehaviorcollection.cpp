#include "groundtruithbehaviorcollection.h"

void GroundTruithBehaviorCollection::Add(const QString& name, GroundTruithInstance* instance)
{
    m_Owned.emplace_back(instance);
    if (!m_Instances.contains(name))
        m_Names.append(name);
    m_Instances[name].append(instance);
}
