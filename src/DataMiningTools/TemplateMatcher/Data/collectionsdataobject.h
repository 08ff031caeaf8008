#pragma once

#include "patternsdataobject.h"
#include <QList>
#include <QString>

/// A named collection of patterns: a row of "pattern_collection". Owns its patterns.
class CollectionsDataObject
{
public:
    explicit CollectionsDataObject(const QString& name = QString(), const QString& desc = QString())
        : m_Name(name), m_Desc(desc)
    {
    }
    ~CollectionsDataObject() { qDeleteAll(m_Patterns); }
    CollectionsDataObject(const CollectionsDataObject&) = delete;
    CollectionsDataObject& operator=(const CollectionsDataObject&) = delete;

    /// All collections, without their patterns; the caller owns them. Empty after a failure.
    static QList<CollectionsDataObject*> GetAllCollections();
    /// The collection of that id, which the caller owns; null when there is none.
    static CollectionsDataObject* GetCollection(int id, bool loadPatterns);
    /// Removes a collection and, by the database's own cascade, all that it holds.
    static bool DeleteCollection(int id);

    /// Stores this as a new row, with addPatterns all patterns under it too. The new id, or -1
    /// with nothing stored.
    int InsertCollection(bool addPatterns = false);
    /// Writes name and description of a stored collection. False also when it has gone.
    bool UpdateCollection();
    /// Reads the patterns anew, without their signals. False after a failure.
    bool LoadPatterns();

    /// -1 until stored.
    int GetId() const { return m_Id; }
    void SetId(int id) { m_Id = id; }
    QString GetName() const { return m_Name; }
    void SetName(const QString& name) { m_Name = name; }
    QString GetDesc() const { return m_Desc; }
    void SetDesc(const QString& desc) { m_Desc = desc; }
    const QList<PatternsDataObject*>& GetPatterns() const { return m_Patterns; }
    /// Takes ownership.
    void AddPattern(PatternsDataObject* pattern) { m_Patterns.append(pattern); }

private:
    int m_Id = -1;
    QString m_Name;
    QString m_Desc;
    QList<PatternsDataObject*> m_Patterns;
};
