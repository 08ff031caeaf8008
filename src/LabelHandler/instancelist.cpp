#include "instancelist.h"

#include "labelinstance.h"
#include <algorithm>

void InstanceList::Append(LabelInstance* instance)
{
    m_Numbers.emplace(instance->GetSegment(), m_NextNumber);
    m_Entries.push_back({m_NextNumber++, instance});
}

void InstanceList::RemoveAt(int index)
{
    const Entry& entry = m_Entries[size_t(index)];
    m_Numbers.erase({entry.m_Instance->GetSegment(), entry.m_Number});
    m_Entries.erase(m_Entries.begin() + index);
}

int InstanceList::FindSegment(const CutSegment* segment) const
{
    const auto first = m_Numbers.lower_bound({segment, 0});
    const bool found = first != m_Numbers.end() && first->first == segment;
    return found ? indexOfNumber(first->second) : -1;
}

int InstanceList::IndexOf(const LabelInstance* instance) const
{
    const auto found = find(instance, instance->GetSegment());
    return found == m_Numbers.end() ? -1 : indexOfNumber(found->second);
}

void InstanceList::SegmentChanged(const LabelInstance* instance, const CutSegment* segment)
{
    for (auto i = find(instance, segment); i != m_Numbers.end(); i = find(instance, segment)) {
        m_Numbers.emplace(instance->GetSegment(), i->second);
        m_Numbers.erase(i);
    }
}

int InstanceList::indexOfNumber(quint64 number) const
{
    const auto found = std::lower_bound(
        m_Entries.begin(), m_Entries.end(), number,
        [](const Entry& entry, quint64 wanted) { return entry.m_Number < wanted; });
    return int(found - m_Entries.begin());
}

// The first number of an instance among those of a segment.
InstanceList::Numbers::const_iterator InstanceList::find(const LabelInstance* instance,
                                                         const CutSegment* segment) const
{
    for (auto i = m_Numbers.lower_bound({segment, 0}); i != m_Numbers.end(); ++i) {
        if (i->first != segment)
            break;
        if (Get(indexOfNumber(i->second)) == instance)
            return i;
    }
    return m_Numbers.end();
}
