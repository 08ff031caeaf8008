#pragma once

#include "groundtruithinstance.h"
#include <QHash>
#include <QList>
#include <QStringList>
#include <memory>
#include <vector>

/// The behaviours of a label file by name, each with its instances in the order of the file.
class GroundTruithBehaviorCollection
{
public:
    GroundTruithBehaviorCollection() = default;
    GroundTruithBehaviorCollection(const GroundTruithBehaviorCollection&) = delete;
    GroundTruithBehaviorCollection& operator=(const GroundTruithBehaviorCollection&) = delete;

    /// Appends an instance and takes ownership of it.
    void Add(const QString& name, GroundTruithInstance* instance);
    /// Empty for an unknown name. The instances live as long as the collection.
    QList<GroundTruithInstance*> Get(const QString& name) const { return m_Instances.value(name); }
    /// In the order in which they were first added.
    QStringList Names() const { return m_Names; }

private:
    QStringList m_Names;
    QHash<QString, QList<GroundTruithInstance*>> m_Instances;
    std::vector<std::unique_ptr<GroundTruithInstance>> m_Owned;
};
