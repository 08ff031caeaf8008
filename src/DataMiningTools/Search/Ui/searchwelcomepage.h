#pragma once

#include "cutsegment.h"
#include <QLabel>
#include <QVBoxLayout>
#include <QWizardPage>

/// The first page of a search: what its wizard is for and what it will look at.
class SearchWelcomePage : public QWizardPage
{
    Q_OBJECT
protected:
    /// purpose: what this search looks for. searchMode: the state of the segments to search.
    SearchWelcomePage(const QString& title, const QString& purpose,
                      CutSegment::SEGMENT_STATE searchMode, QWidget* parent)
        : QWizardPage(parent)
    {
        setTitle(title);
        const QString place = searchMode == CutSegment::SEGMENT_RESULT
                                  ? tr("It refines the results shown in the results view.")
                                  : tr("It searches the unlabeled data.");
        auto* layout = new QVBoxLayout(this);
        for (const QString& text : {tr("Wizard for the semi-automatic identification and labeling "
                                       "of animal behavior."),
                                    purpose, place}) {
            auto* label = new QLabel(text);
            label->setWordWrap(true);
            layout->addWidget(label);
        }
        layout->addStretch();
    }
};
