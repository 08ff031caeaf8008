#include "thresholdwizard.h"

#include "thresholdfilterpage.h"
#include "thresholdfinishpage.h"
#include "thresholdwelcomepage.h"

namespace
{

enum Page { WELCOME_PAGE, FILTER_PAGE, FINISH_PAGE };

} // namespace

ThresholdWizard::ThresholdWizard(DataSet* dataSet, CutCollection* cuts,
                                 CutSegment::SEGMENT_STATE searchMode, QWidget* parent)
    : QWizard(parent), m_Filter(new ThresholdFilterPage(dataSet, cuts, searchMode)),
      m_Finish(new ThresholdFinishPage(cuts, searchMode))
{
    setWindowTitle(tr("Threshold Wizard"));
    setPage(WELCOME_PAGE, new ThresholdWelcomePage(searchMode));
    setPage(FILTER_PAGE, m_Filter);
    setPage(FINISH_PAGE, m_Finish);
    resize(900, 600);
}

void ThresholdWizard::initializePage(int id)
{
    if (id == FINISH_PAGE)
        m_Finish->SetMatches(m_Filter->GetMatches());
    QWizard::initializePage(id);
}
