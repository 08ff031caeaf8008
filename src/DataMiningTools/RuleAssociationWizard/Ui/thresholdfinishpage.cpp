#include "thresholdfinishpage.h"

#include "cutsegment.h"
#include "dialogprogress.h"
#include "insertmatches.h"
#include <QLabel>
#include <QVBoxLayout>

ThresholdFinishPage::ThresholdFinishPage(CutCollection* cuts, CutSegment::SEGMENT_STATE searchMode,
                                         QWidget* parent)
    : QWizardPage(parent), m_CutCollection(cuts), m_SearchMode(searchMode), m_Summary(new QLabel)
{
    setTitle(tr("Insert Results"));
    m_Summary->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Summary);
    layout->addStretch();
}

void ThresholdFinishPage::SetMatches(const SearchMatches& matches)
{
    m_Matches = matches;
    QString summary = tr("Number of matches that become results: %1").arg(matches.size());
    if (m_SearchMode == CutSegment::SEGMENT_RESULT)
        summary += tr("\nThey replace all results shown in the results view.");
    m_Summary->setText(summary);
}

bool ThresholdFinishPage::validatePage()
{
    if (!m_CutCollection)
        return true;
    DialogProgress progress(this, tr("Inserting Cuts"));
    InsertMatches(*m_CutCollection, m_Matches, m_SearchMode, progress);
    return true;
}
