#pragma once

#include <QString>

class QWidget;
class RowList;

/// Tells the user what failed, and why the database says it did.
void ShowDatabaseError(QWidget* parent, const QString& text);

/// Asks the question, in which %1 stands for the row's text, deletes the current row by an
/// operation of its table and tells the user how that went, in a box of that title and text when it
/// went well. False when nothing was deleted.
bool DeleteCurrentRow(const RowList& list, bool (*deleteRow)(int id), const QString& question,
                      const QString& title, const QString& text);
