#pragma once

#include "behaviorlabel.h"
#include <QList>
#include <QPointer>
#include <vector>

/// The behaviours of a run, in the order of their creation. A behaviour belongs to the
/// collection it was added to and lives as long as that, also after it has left the list.
class LabelCollection
{
public:
    LabelCollection() = default;
    ~LabelCollection();
    LabelCollection(const LabelCollection&) = delete;
    LabelCollection& operator=(const LabelCollection&) = delete;

    /// Appends a behaviour and takes ownership of it.
    void AddLabel(BehaviorLabel* label);
    /// No bounds check.
    BehaviorLabel* GetLabel(int index) const { return m_Labels.at(index); }
    int GetLabelCount() const { return m_Labels.size(); }
    /// -1 for a behaviour that is not on the list.
    int IndexOf(const BehaviorLabel* label) const;
    /// How many behaviours were ever on the list.
    int GetAddedCount() const { return int(m_Owned.size()); }
    /// The first behaviour of that name, or null.
    BehaviorLabel* FindLabel(const QString& name) const;
    /// Takes a behaviour off the list; false when it is not on it.
    bool RemoveLabel(BehaviorLabel* label) { return m_Labels.removeOne(label); }
    /// Removes a segment from the first behaviour that has it, with its signal; false when none
    /// has it.
    bool RemoveCut(CutSegment* segment);

private:
    QList<BehaviorLabel*> m_Labels;
    // Every behaviour that was ever on the list.
    std::vector<QPointer<BehaviorLabel>> m_Owned;
};
