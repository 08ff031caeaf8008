#pragma once

#include "liverecording.h"
#include <QDialog>

class QListWidgetItem;
class RowList;
class TemplateDetails;

/// The collections of the template database and their patterns, to be seen, changed and deleted.
/// The patterns shown are always those of the current collection.
class DatabaseControlPanel : public QDialog
{
    Q_OBJECT
public:
    explicit DatabaseControlPanel(QWidget* parent = nullptr);

public slots:
    void populateListWidget();
    /// Null empties the list of patterns.
    void populatePatternsList(QListWidgetItem* collection);
    void addCollection();
    void editCollection();
    /// Deletes the current collection with all its patterns, after a question.
    void deleteCollection();
    void viewPattern();
    void renamePattern();
    /// Deletes the current pattern with all its signals, after a question.
    void deletePattern();
    /// Copies all patterns of the current collection to a file that the user chooses.
    void exportCollection();
    /// The same for the current pattern alone.
    void exportPattern();
    /// Adds the patterns of a file that the user chooses to the current collection.
    void importPatterns();

private:
    RowList* makeCollections();
    RowList* makePatterns();
    void showDetails();
    void exportRows(const QList<int>& ids, const QString& proposal);
    void storeImported(const QString& path, int collectionId);

    RowList* m_Collections;
    RowList* m_Patterns;
    TemplateDetails* m_Details;
};

/// Shows the template database, which belongs to no recording.
void ShowTemplateDatabase(const SharedRecording& recording, QWidget* parent);
