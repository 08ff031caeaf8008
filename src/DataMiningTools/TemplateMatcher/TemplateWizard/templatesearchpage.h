#pragma once

#include "cutsegment.h"
#include "matchextraction.h"
#include <QHash>
#include <QList>
#include <QString>
#include <QWizardPage>
#include <memory>

class CutCollection;
class DataSet;
class PatternsDataObject;
class TemplateMatcher;

/// A page that searches for a template each time it is entered: asks how, runs the matcher and
/// hands what was found to the subclass. Template and results stay until the next search.
class TemplateSearchPage : public QWizardPage
{
    Q_OBJECT
public:
    ~TemplateSearchPage() override;

    /// Searches anew and gives the wizard its size. After a cancelled or failed search the page
    /// is empty.
    void initializePage() override;

protected:
    /// patternIds: the chosen templates, of which the first is searched; the caller's.
    TemplateSearchPage(DataSet* dataSet, CutCollection* cuts, CutSegment::SEGMENT_STATE searchMode,
                       const QList<int>* patternIds, QWidget* parent);

    virtual void clearResults() = 0;
    virtual void showResults() = 0;

    DataSet* dataSet() const { return m_DataSet; }
    CutCollection* cuts() const { return m_CutCollection; }
    CutSegment::SEGMENT_STATE searchMode() const { return m_SearchMode; }
    PatternsDataObject* pattern() const { return m_Pattern.get(); }
    /// Of the last search that went well.
    SearchResults searchResults() const;
    const QHash<QString, int>& attributeMap() const { return m_AttributeMap; }
    /// The range of the results, before they were normalised.
    float minimum() const { return m_MinValue; }
    float maximum() const { return m_MaxValue; }

private:
    bool loadPattern();
    bool askMeasure();
    bool askAttributes();
    void search();
    void readRange();

    DataSet* m_DataSet;
    CutCollection* m_CutCollection;
    const CutSegment::SEGMENT_STATE m_SearchMode;
    const QList<int>* m_PatternIds;
    std::unique_ptr<PatternsDataObject> m_Pattern;
    // Borrows the pattern and owns the results.
    std::unique_ptr<TemplateMatcher> m_Matcher;
    QHash<QString, int> m_AttributeMap;
    int m_Measure = -1;
    float m_MinValue = -1;
    float m_MaxValue = 1;
};
