#include "templaterows.h"

#include "collectionsdataobject.h"
#include "databasemessages.h"
#include "databasequery.h"
#include "patternsdataobject.h"
#include <algorithm>
#include <memory>

bool ReadCollectionRows(QWidget* parent, QVector<RowList::Row>& rows)
{
    const QList<CollectionsDataObject*> collections = CollectionsDataObject::GetAllCollections();
    const bool isRead = LastQueryError().isEmpty();
    for (const CollectionsDataObject* collection : collections)
        rows.append({collection->GetId(), collection->GetName(), collection->GetDesc()});
    qDeleteAll(collections);
    if (!isRead)
        ShowDatabaseError(parent, RowList::tr("Error: The collections can't be read."));
    return isRead;
}

QVector<RowList::Row> ReadPatternRows(QWidget* parent, const QListWidgetItem* collection)
{
    QVector<RowList::Row> rows;
    if (!collection)
        return rows;
    const std::unique_ptr<CollectionsDataObject> stored(
        CollectionsDataObject::GetCollection(RowList::GetId(collection), true));
    if (!LastQueryError().isEmpty())
        ShowDatabaseError(parent, RowList::tr("Error: The patterns can't be read."));
    else if (stored)
        for (const PatternsDataObject* pattern : stored->GetPatterns())
            rows.append({pattern->GetId(), pattern->GetName(), pattern->GetDesc()});
    return rows;
}

void SelectNewestPattern(RowList& collections, RowList& patterns)
{
    if (collections.GetCurrentItem())
        return;
    const QList<PatternsDataObject*> all = PatternsDataObject::GetAllPatterns();
    const auto newest = std::max_element(all.begin(), all.end(), [](const auto* a, const auto* b) {
        return a->GetId() < b->GetId();
    });
    if (newest != all.end()) {
        collections.SetCurrentId((*newest)->GetCollectionId());
        patterns.SetCurrentId((*newest)->GetId());
    }
    qDeleteAll(all);
}
