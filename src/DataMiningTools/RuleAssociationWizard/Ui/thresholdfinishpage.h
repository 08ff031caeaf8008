#pragma once

#include "cutsegment.h"
#include "searchmatch.h"
#include <QWizardPage>

class CutCollection;
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
    /// Inserts the matches into the cuts.
    bool validatePage() override;

private:
    CutCollection* m_CutCollection;
    CutSegment::SEGMENT_STATE m_SearchMode;
    SearchMatches m_Matches;
    QLabel* m_Summary;
};
