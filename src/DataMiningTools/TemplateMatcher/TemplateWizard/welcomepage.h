#pragma once

#include <QLabel>
#include <QVBoxLayout>
#include <QWizardPage>

/// Tells what a template search does.
class WelcomePage : public QWizardPage
{
    Q_OBJECT
public:
    explicit WelcomePage(QWidget* parent = nullptr) : QWizardPage(parent)
    {
        setTitle(tr("Welcome"));
        auto* text = new QLabel(
            tr("<p>A template search finds the places in the recording that look like a stored "
               "pattern.</p>"
               "<p>First a pattern is chosen from the template database and its attributes are "
               "matched to the columns of the data. Then the confidence that a match needs can be "
               "set while all matches are in view, and single ones can be rejected.</p>"
               "<p>The matches become results, to be reviewed in the results view. Until the "
               "wizard is finished nothing changes.</p>"));
        text->setWordWrap(true);
        (new QVBoxLayout(this))->addWidget(text);
    }
};
