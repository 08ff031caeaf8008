#include "templatewizard.h"

#include "patternsdataobject.h"
#include "resultfilterpage.h"
#include "selectpatternspage.h"
#include "welcomepage.h"

namespace
{

enum PageId { WELCOME_PAGE = 0, SELECT_PATTERNS_PAGE = 1, RESULT_FILTER_PAGE = 3 };

} // namespace

TemplateWizard::TemplateWizard(DataSet* dataSet, CutCollection* cuts, int searchMode,
                               QWidget* parent)
    : QWizard(parent), m_DataSet(dataSet), m_CutCollection(cuts),
      m_SearchMode(CutSegment::SEGMENT_STATE(searchMode))
{
    setPage(WELCOME_PAGE, new WelcomePage);
    setPage(SELECT_PATTERNS_PAGE, new SelectPatternsPage(&m_PatternIds, m_DataSet));
    addResultPage();
}

TemplateWizard::TemplateWizard(DataSet* dataSet, CutCollection* cuts, int searchMode,
                               PatternsDataObject* pattern, QWidget* parent)
    : QWizard(parent), m_DataSet(dataSet), m_CutCollection(cuts),
      m_SearchMode(CutSegment::SEGMENT_STATE(searchMode))
{
    if (pattern)
        m_PatternIds.append(pattern->GetId());
    addResultPage();
}

void TemplateWizard::addResultPage()
{
    setWindowTitle(tr("Template Wizard"));
    m_ResultPage = new ResultFilterPage(m_DataSet, m_CutCollection, m_SearchMode, &m_PatternIds);
    setPage(RESULT_FILTER_PAGE, m_ResultPage);
}

bool TemplateWizard::validateCurrentPage()
{
    if (currentPage()->validatePage())
        return true;
    if (currentId() == RESULT_FILTER_PAGE && !m_ResultPage->HasResults()) {
        m_ResultPage->initializePage();
        if (!m_ResultPage->HasResults())
            back();
    }
    return false;
}
