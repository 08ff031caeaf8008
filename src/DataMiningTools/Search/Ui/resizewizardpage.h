#pragma once

#include "cutsegment.h"
#include "searchmatch.h"
#include <QWizardPage>

class CutCollection;
class DataSet;
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
    /// Inserts the matches into the cuts.
    bool validatePage() override;

public slots:
    void changeAttIndex(int attribute);

private:
    CutCollection* m_CutCollection;
    CutSegment::SEGMENT_STATE m_SearchMode;
    // As they were found.
    SearchMatches m_Matches;
    QComboBox* m_Attribute;
    QLabel* m_Number;
    ResizeList* m_List;
};
