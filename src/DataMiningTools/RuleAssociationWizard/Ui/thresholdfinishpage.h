#pragma once

#include "cutsegment.h"
#include "searchmatch.h"
#include <QWizardPage>

class CutCollection;
class InsertionForecast;
class QLabel;

/// The last page of the threshold search, which makes the matches into results.
class ThresholdFinishPage : public QWizardPage
{
    Q_OBJECT
public:
    /// searchMode: the state of the segments that were searched.
    ThresholdFinishPage(CutCollection* cuts, CutSegment::SEGMENT_STATE searchMode,
                        QWidget* parent = nullptr);

    void SetMatches(const SearchMatches& matches);
    /// Inserts the matches into the cuts; false when the user keeps the results that would go.
    bool validatePage() override;

private:
    QLabel* m_Number;
    InsertionForecast* m_Forecast;
};
