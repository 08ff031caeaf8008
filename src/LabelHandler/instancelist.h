#pragma once

#include <QtGlobal>
#include <set>
#include <utility>
#include <vector>

class CutSegment;
class LabelInstance;

/// The instances of a behaviour in the order of their labelling, with a search by segment.
class InstanceList
{
public:
    int GetCount() const { return int(m_Entries.size()); }
    /// No bounds check.
    LabelInstance* Get(int index) const { return m_Entries[size_t(index)].m_Instance; }

    void Append(LabelInstance* instance);
    void RemoveAt(int index);
    /// The index of the first instance of a segment, or -1.
    int FindSegment(const CutSegment* segment) const;
    /// -1 when the instance is not in the list.
    int IndexOf(const LabelInstance* instance) const;
    /// An instance in the list no longer stands for segment.
    void SegmentChanged(const LabelInstance* instance, const CutSegment* segment);

private:
    // Numbers grow along the list and never change, whatever leaves it.
    struct Entry {
        quint64 m_Number;
        LabelInstance* m_Instance;
    };
    using Numbers = std::set<std::pair<const CutSegment*, quint64>>;
    int indexOfNumber(quint64 number) const;
    Numbers::const_iterator find(const LabelInstance* instance, const CutSegment* segment) const;

    std::vector<Entry> m_Entries;
    Numbers m_Numbers;
    quint64 m_NextNumber = 0;
};
