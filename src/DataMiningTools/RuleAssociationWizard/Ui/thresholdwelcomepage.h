#pragma once

#include "searchwelcomepage.h"

/// The first page of the threshold search.
class ThresholdWelcomePage : public SearchWelcomePage
{
    Q_OBJECT
public:
    explicit ThresholdWelcomePage(int searchMode, QWidget* parent = nullptr);
};
