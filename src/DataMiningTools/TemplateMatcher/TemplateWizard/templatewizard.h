#pragma once

#include "cutsegment.h"
#include <QList>
#include <QWizard>

class CutCollection;
class DataSet;
class PatternsDataObject;
class ResultFilterPage;

/// Leads from a stored pattern to the segments of the recording that look like it.
class TemplateWizard : public QWizard
{
    Q_OBJECT
public:
    /// The user chooses the pattern. searchMode: the state of the segments that are searched, as
    /// its plain number or its name; SEGMENT_RESULT refines earlier results.
    TemplateWizard(DataSet* dataSet, CutCollection* cuts, int searchMode,
                   QWidget* parent = nullptr);
    /// Searches for a stored pattern, which stays the caller's.
    TemplateWizard(DataSet* dataSet, CutCollection* cuts, int searchMode,
                   PatternsDataObject* pattern, QWidget* parent = nullptr);

    /// Where there is nothing to finish with, the search is run again.
    bool validateCurrentPage() override;

private:
    void addResultPage();

    DataSet* m_DataSet;
    CutCollection* m_CutCollection;
    const CutSegment::SEGMENT_STATE m_SearchMode;
    QList<int> m_PatternIds;
    ResultFilterPage* m_ResultPage = nullptr;
};
