#include "ruleassociationwizard.h"

#include "resizewizardpage.h"
#include "ruleassociationfilterpage.h"
#include "ruleassociationwelcomepage.h"

namespace
{

enum Page { WELCOME_PAGE, FILTER_PAGE, RESIZE_PAGE };

} // namespace

RuleAssociationWizard::RuleAssociationWizard(DataSet* dataSet, CutCollection* cuts,
                                             LabelCollection* labels,
                                             CutSegment::SEGMENT_STATE searchMode, QWidget* parent)
    : QWizard(parent), m_Filter(new RuleAssociationFilterPage(dataSet, cuts, labels, searchMode)),
      m_Resize(new ResizeWizardPage(dataSet, cuts, searchMode))
{
    setWindowTitle(tr("Rule Association Wizard"));
    setPage(WELCOME_PAGE, new RuleAssociationWelcomePage(searchMode));
    setPage(FILTER_PAGE, m_Filter);
    setPage(RESIZE_PAGE, m_Resize);
    resize(900, 600);
}

void RuleAssociationWizard::initializePage(int id)
{
    if (id == RESIZE_PAGE)
        m_Resize->SetMatches(m_Filter->GetMatches());
    QWizard::initializePage(id);
}
