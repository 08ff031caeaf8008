#pragma once

#include "searchmatch.h"
#include <QWizardPage>

class DataSet;
class MatchPlot;
class QLabel;
class QLayout;

/// The page of a search that runs it and shows what it has found. The wizard goes on once the
/// search has run.
class SearchFilterPage : public QWizardPage
{
    Q_OBJECT
public:
    /// What the last run has found, without the matches that the user has rejected.
    const SearchMatches& GetMatches() const;
    bool isComplete() const override { return m_HasRun; }

public slots:
    /// Runs the search.
    virtual void extractMatches() = 0;

protected:
    SearchFilterPage(const QString& resultsTitle, DataSet* dataSet, QWidget* parent);

    /// The page's fields above its results.
    void layOut(QWidget* fields);
    /// The button that starts the search, beside the number of matches.
    QLayout* makeExtractRow();
    void showMatches(const SearchMatches& matches);
    /// For any change of what is searched for: the matches of another search are none of this one.
    void dropMatches();
    void showAttribute(int attribute);

    /// Enter runs the search before it goes to the next page.
    void keyPressEvent(QKeyEvent* event) override;

private:
    QStringList getFields() const;
    void showNumber();

    QWidget* m_Fields = nullptr;
    QStringList m_FieldsSearched;
    QLabel* m_Number;
    MatchPlot* m_Results;
    bool m_HasRun = false;
};
