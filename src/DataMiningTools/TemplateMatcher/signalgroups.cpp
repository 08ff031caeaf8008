#include "signalgroups.h"

#include "patternsdataobject.h"

SignalGroups::SignalGroups(const PatternsDataObject& pattern,
                           const QHash<QString, int>& attributeMap)
    : m_Pattern(pattern), m_AttributeMap(attributeMap),
      m_Next(size_t(pattern.GetSignalCollections().size()))
{
}

SignalGroups::Group SignalGroups::Take()
{
    Group group;
    for (size_t c = 0; c < m_Next.size(); ++c) {
        for (const auto* signal = nextOf(c); signal; signal = nextOf(c)) {
            const int attribute = attributeOf(*signal);
            if (group.m_Members.empty())
                group.m_Attribute = attribute;
            else if (attribute != group.m_Attribute)
                break;
            group.m_Members.push_back({c, signal});
            ++m_Next[c];
        }
    }
    return group;
}

const SignalTemplateDataObject* SignalGroups::nextOf(size_t collection) const
{
    const auto& stored = m_Pattern.GetSignalCollections()[int(collection)]->GetSignals();
    return stored.value(m_Next[collection], nullptr);
}

int SignalGroups::attributeOf(const SignalTemplateDataObject& signal) const
{
    return m_AttributeMap.value(signal.GetAttributeName(), 0);
}
