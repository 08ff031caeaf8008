#pragma once

#include "patternorigin.h"
#include "signaltemplatecollectiondataobject.h"
#include <QList>
#include <QString>

class QSqlQuery;

/// A template: a row of "pattern". Owns its signal collections, one per frequency factor.
class PatternsDataObject
{
public:
    explicit PatternsDataObject(int collectionId = -1, const QString& name = QString(),
                                const QString& desc = QString())
        : m_CollectionId(collectionId), m_Name(name), m_Desc(desc)
    {
    }
    ~PatternsDataObject() { qDeleteAll(m_SignalCollections); }
    PatternsDataObject(const PatternsDataObject&) = delete;
    PatternsDataObject& operator=(const PatternsDataObject&) = delete;

    /// All patterns of all collections, without their signals; the caller owns them. Empty after a
    /// failure.
    static QList<PatternsDataObject*> GetAllPatterns();
    /// The pattern of that id, which the caller owns, with loadSignals all that stands under it
    /// and its origin too; null when there is none or not all of the signals can be read.
    static PatternsDataObject* GetPattern(int id, bool loadSignals);
    /// Removes a pattern and, by the database's own cascade, its signals.
    static bool DeletePattern(int id);
    /// Gives a stored pattern another name. False also when it has gone.
    static bool RenamePattern(int id, const QString& name);
    /// The pattern of the present row of a query, without signals; the caller owns it.
    static PatternsDataObject* FromRow(const QSqlQuery& row);

    /// Stores this as a new row, with its origin where something is known of it, and with
    /// addSignals all signal collections under it too. The new id, or -1 with nothing stored.
    int InsertPattern(bool addSignals);

    /// -1 until stored.
    int GetId() const { return m_Id; }
    void SetId(int id) { m_Id = id; }
    int GetCollectionId() const { return m_CollectionId; }
    void SetCollectionId(int id) { m_CollectionId = id; }
    QString GetName() const { return m_Name; }
    void SetName(const QString& name) { m_Name = name; }
    QString GetDesc() const { return m_Desc; }
    void SetDesc(const QString& desc) { m_Desc = desc; }
    const PatternOrigin& GetOrigin() const { return m_Origin; }
    void SetOrigin(const PatternOrigin& origin) { m_Origin = origin; }
    /// By rising frequency factor when read.
    const QList<SignalTemplateCollectionDataObject*>& GetSignalCollections() const
    {
        return m_SignalCollections;
    }
    /// Takes ownership.
    void AddSignalCollection(SignalTemplateCollectionDataObject* collection)
    {
        m_SignalCollections.append(collection);
    }

private:
    int m_Id = -1;
    int m_CollectionId;
    QString m_Name;
    QString m_Desc;
    PatternOrigin m_Origin;
    QList<SignalTemplateCollectionDataObject*> m_SignalCollections;
};
