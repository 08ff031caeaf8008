#pragma once

#include "rowlist.h"
#include <QWizardPage>

class DataSet;
class TemplateDetails;

/// Moves patterns from the collections of the template database to a list of chosen ones.
class SelectPatternsPage : public QWizardPage
{
    Q_OBJECT
public:
    /// patternIds: where the wizard keeps the ids of the chosen patterns.
    /// dataSet: the recording to be searched.
    SelectPatternsPage(QList<int>* patternIds, const DataSet* dataSet, QWidget* parent = nullptr);

    void initializePage() override;
    bool validatePage() override;

public slots:
    /// Null empties the list of patterns.
    void populatePatternsList(QListWidgetItem* collection);
    void addTemplate();
    void removeTemplate();

private:
    void populateCollections();
    void showRows();
    void showDetails(const QListWidgetItem* pattern);

    QList<int>* m_PatternIds;
    const DataSet* m_DataSet;
    RowList* m_Collections;
    RowList* m_Patterns;
    RowList* m_ChosenPatterns;
    TemplateDetails* m_Details;
    // Of the current collection, chosen ones included.
    QVector<RowList::Row> m_Rows;
    QVector<RowList::Row> m_ChosenRows;
};
