#pragma once

#include "groundtruithinstance.h"
#include <QList>
#include <QStringList>
#include <map>
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
    /// Null for an unknown name. List and instances live as long as the collection.
    const QList<GroundTruithInstance*>* Get(const QString& name) const;
    /// In the order in which they were first added.
    QStringList Names() const { return m_Names; }

private:
    QStringList m_Names;
    // A map's lists stay where they are while others are added.
    std::map<QString, QList<GroundTruithInstance*>> m_Instances;
    std::vector<std::unique_ptr<GroundTruithInstance>> m_Owned;
};
