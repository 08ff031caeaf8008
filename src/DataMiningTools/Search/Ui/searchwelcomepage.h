#pragma once

#include <QWizardPage>

/// The first page of a search: what its wizard is for and what it will look at.
class SearchWelcomePage : public QWizardPage
{
    Q_OBJECT
protected:
    /// purpose: what this search looks for. searchMode: the state of the segments to search.
    SearchWelcomePage(const QString& title, const QString& purpose, int searchMode,
                      QWidget* parent);
};
