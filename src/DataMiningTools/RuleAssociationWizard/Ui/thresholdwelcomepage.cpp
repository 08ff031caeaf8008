#include "thresholdwelcomepage.h"

ThresholdWelcomePage::ThresholdWelcomePage(int searchMode, QWidget* parent)
    : SearchWelcomePage(
          tr("Threshold Search"),
          tr("This search finds where the values of attributes stay above or below thresholds."),
          searchMode, parent)
{
}
