#pragma once

#include "searchwelcomepage.h"

/// The first page of the rule search.
class RuleAssociationWelcomePage : public SearchWelcomePage
{
    Q_OBJECT
public:
    explicit RuleAssociationWelcomePage(CutSegment::SEGMENT_STATE searchMode,
                                        QWidget* parent = nullptr)
        : SearchWelcomePage(tr("Rule Association Search"),
                            tr("This search finds what follows a sequence of labeled behaviors."),
                            searchMode, parent)
    {
    }
};
