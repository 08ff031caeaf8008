#include "ruleassociationwelcomepage.h"

RuleAssociationWelcomePage::RuleAssociationWelcomePage(int searchMode, QWidget* parent)
    : SearchWelcomePage(tr("Rule Association Search"),
                        tr("This search finds what follows a sequence of labeled behaviors."),
                        searchMode, parent)
{
}
