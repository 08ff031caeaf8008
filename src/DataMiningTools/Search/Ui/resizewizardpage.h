#pragma once

#include "cutsegment.h"
#include "searchmatch.h"
#include <QWizardPage>

class CutCollection;
class DataSet;
class InsertionForecast;
class QComboBox;
class QLabel;
class ResizeList;

/// The last page of a search: the ends of its matches can be changed before they become results.
class ResizeWizardPage : public QWizardPage
{
    Q_OBJECT
public:
    /// searchMode: the state of the segments that were searched.
    ResizeWizardPage(DataSet* dataSet, CutCollection* cuts, CutSegment::SEGMENT_STATE searchMode,
                     QWidget* parent = nullptr);

    /// The same matches again keep the ends that the user has given them.
    void SetMatches(const SearchMatches& matches);
    /// Inserts the matches into the cuts; false when the user keeps the results that would go.
    bool validatePage() override;

public slots:
    void changeAttIndex(int attribute);

private:
    // As they were found.
    SearchMatches m_Matches;
    QComboBox* m_Attribute;
    QLabel* m_Number;
    InsertionForecast* m_Forecast;
    ResizeList* m_List;
};
