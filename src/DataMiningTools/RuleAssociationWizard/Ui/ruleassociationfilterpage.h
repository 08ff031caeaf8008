#pragma once

#include "cutsegment.h"
#include "searchfilterpage.h"
#include <QList>

class CutCollection;
class LabelCollection;
class QComboBox;
class QSlider;
class SearchRows;

/// Where the user puts a rule together from behaviours.
class RuleAssociationFilterPage : public SearchFilterPage
{
    Q_OBJECT
public:
    /// searchMode: the state of the segments that hold the matches.
    RuleAssociationFilterPage(DataSet* dataSet, const CutCollection* cuts,
                              const LabelCollection* labels, CutSegment::SEGMENT_STATE searchMode,
                              QWidget* parent = nullptr);

public slots:
    void addRuleRow();
    void extractMatches() override;

private:
    QWidget* makeFields();
    QLayout* makeLengthRow();
    /// The names in the boxes, without empty ones.
    QStringList getRule() const;

    DataSet* m_DataSet;
    const CutCollection* m_CutCollection;
    const LabelCollection* m_LabelCollection;
    CutSegment::SEGMENT_STATE m_SearchMode;
    SearchRows* m_Rows;
    QList<QComboBox*> m_Labels;
    QSlider* m_SearchLength;
};
