#pragma once

#include "cutsegment.h"
#include "searchfilterpage.h"
#include "thresholdextractor.h"
#include <QList>

class CutCollection;
class QSpinBox;
class SearchRows;
class ThresholdParameterWidget;

/// Where the user sets the parameters of the threshold search.
class ThresholdFilterPage : public SearchFilterPage
{
    Q_OBJECT
public:
    /// searchMode: the state of the segments to search.
    ThresholdFilterPage(DataSet* dataSet, const CutCollection* cuts,
                        CutSegment::SEGMENT_STATE searchMode, QWidget* parent = nullptr);

public slots:
    void addThresholdParameter();
    void extractMatches() override;

private:
    QWidget* makeFields();
    void removeParameter(ThresholdParameterWidget* parameter);
    void showTested(const std::vector<ThresholdParameter>& parameters);

    DataSet* m_DataSet;
    const CutCollection* m_CutCollection;
    CutSegment::SEGMENT_STATE m_SearchMode;
    SearchRows* m_Rows;
    QList<ThresholdParameterWidget*> m_Parameters;
    QSpinBox* m_MinimumLength;
    int m_TestedAttribute = -1;
};
