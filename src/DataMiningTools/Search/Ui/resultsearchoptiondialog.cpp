#include "resultsearchoptiondialog.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

ResultSearchOptionDialog::ResultSearchOptionDialog(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("Label Search Option"));
    auto* question = new QLabel(tr("Would you like to search unlabeled data or refine the existing "
                                   "results shown in the results view?"));
    auto* unlabeled = new QPushButton(tr("Search Unlabeled Data"));
    auto* refine = new QPushButton(tr("Refine Results"));
    unlabeled->setDefault(true);
    connect(unlabeled, &QPushButton::clicked, this, &ResultSearchOptionDialog::searchUnlabeledData);
    connect(refine, &QPushButton::clicked, this, &ResultSearchOptionDialog::searchRefineResults);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(unlabeled);
    buttons->addWidget(refine);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(question);
    layout->addLayout(buttons);
}

void ResultSearchOptionDialog::searchUnlabeledData()
{
    m_SearchMode = CutSegment::SEGMENT_CUT;
    accept();
}

void ResultSearchOptionDialog::searchRefineResults()
{
    m_SearchMode = CutSegment::SEGMENT_RESULT;
    accept();
}
