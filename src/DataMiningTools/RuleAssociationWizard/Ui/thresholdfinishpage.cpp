#include "thresholdfinishpage.h"

#include "dialogprogress.h"
#include "insertionforecast.h"
#include <QLabel>
#include <QVBoxLayout>

ThresholdFinishPage::ThresholdFinishPage(CutCollection* cuts, CutSegment::SEGMENT_STATE searchMode,
                                         QWidget* parent)
    : QWizardPage(parent), m_Number(new QLabel), m_Forecast(new InsertionForecast(cuts, searchMode))
{
    setTitle(tr("Insert Results"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_Number);
    layout->addWidget(m_Forecast);
    if (searchMode == CutSegment::SEGMENT_RESULT)
        layout->addWidget(new QLabel(tr("They replace all results shown in the results view.")));
    layout->addStretch();
}

void ThresholdFinishPage::SetMatches(const SearchMatches& matches)
{
    m_Number->setText(tr("Number matches: %1").arg(matches.size()));
    m_Forecast->SetMatches(matches);
}

bool ThresholdFinishPage::validatePage()
{
    if (!m_Forecast->AgreesToInsert())
        return false;
    DialogProgress progress(this, tr("Inserting Cuts"));
    m_Forecast->Insert(progress);
    return true;
}
