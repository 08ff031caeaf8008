#pragma once

#include "searchwelcomepage.h"

/// The first page of the threshold search.
class ThresholdWelcomePage : public SearchWelcomePage
{
    Q_OBJECT
public:
    explicit ThresholdWelcomePage(CutSegment::SEGMENT_STATE searchMode, QWidget* parent = nullptr)
        : SearchWelcomePage(tr("Threshold Search"),
                            tr("This search finds where the values of attributes stay above or "
                               "below thresholds."),
                            searchMode, parent)
    {
    }
};
