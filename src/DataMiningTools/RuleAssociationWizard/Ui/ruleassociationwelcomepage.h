#pragma once

#include "searchwelcomepage.h"

/// The first page of the rule search.
class RuleAssociationWelcomePage : public SearchWelcomePage
{
    Q_OBJECT
public:
    explicit RuleAssociationWelcomePage(int searchMode, QWidget* parent = nullptr);
};
