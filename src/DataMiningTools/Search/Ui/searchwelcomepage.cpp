#include "searchwelcomepage.h"

#include "cutsegment.h"
#include <QLabel>
#include <QVBoxLayout>

SearchWelcomePage::SearchWelcomePage(const QString& title, const QString& purpose, int searchMode,
                                     QWidget* parent)
    : QWizardPage(parent)
{
    setTitle(title);
    const QString place = searchMode == CutSegment::SEGMENT_RESULT
                              ? tr("It refines the results shown in the results view.")
                              : tr("It searches the unlabeled data.");
    auto* layout = new QVBoxLayout(this);
    for (const QString& text :
         {tr("Wizard for the semi-automatic identification and labeling of animal behavior."),
          purpose, place}) {
        auto* label = new QLabel(text);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    layout->addStretch();
}
