#pragma once

#include "rowlist.h"

/// The collections of the template database as rows of a list. False, and the user is told, when
/// they can't be read.
bool ReadCollectionRows(QWidget* parent, QVector<RowList::Row>& rows);

/// The patterns of the collection that an entry stands for; none for null. When they can't be
/// read there are none, and the user is told.
QVector<RowList::Row> ReadPatternRows(QWidget* parent, const QListWidgetItem* collection);

/// Goes to the template that was stored last, in the lists of collections and of their patterns.
/// Does nothing while a collection is current.
void SelectNewestPattern(RowList& collections, RowList& patterns);
