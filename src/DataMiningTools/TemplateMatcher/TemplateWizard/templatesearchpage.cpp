#include "templatesearchpage.h"

#include "askuser.h"
#include "attributematchdialog.h"
#include "cutcollection.h"
#include "databasemessages.h"
#include "dataset.h"
#include "dialogprogress.h"
#include "modaldialog.h"
#include "patternsdataobject.h"
#include "templatematcher.h"
#include "usererror.h"
#include <QPointer>
#include <QWizard>
#include <algorithm>

TemplateSearchPage::TemplateSearchPage(DataSet* dataSet, CutCollection* cuts,
                                       CutSegment::SEGMENT_STATE searchMode,
                                       const QList<int>* patternIds, QWidget* parent)
    : QWizardPage(parent), m_DataSet(dataSet), m_CutCollection(cuts), m_SearchMode(searchMode),
      m_PatternIds(patternIds)
{
}

TemplateSearchPage::~TemplateSearchPage() = default;

void TemplateSearchPage::initializePage()
{
    clearResults();
    if (m_PatternIds->isEmpty())
        return;
    const QPointer<TemplateSearchPage> self(this);
    if (loadPattern() && askMeasure() && askAttributes())
        search();
    if (self)
        wizard()->resize(900, 600);
}

bool TemplateSearchPage::loadPattern()
{
    m_Matcher.reset();
    m_Pattern.reset(PatternsDataObject::GetPattern(m_PatternIds->first(), true));
    if (!m_Pattern) {
        ShowDatabaseError(this, tr("Error: The pattern can't be read."));
        return false;
    }
    // The first collection tells which attributes the others have, too.
    if (TemplateWidths(*m_Pattern).empty() || TemplateWidths(*m_Pattern).front() == 0) {
        ShowUserError(this, tr("Error"), tr("Error: The pattern holds no signals."));
        return false;
    }
    if (m_DataSet->GetRowCount() == 0 || m_DataSet->GetAttributeCount() == 0) {
        ShowUserError(this, tr("Error"), tr("Error: There is no data to search."));
        return false;
    }
    return true;
}

bool TemplateSearchPage::askMeasure()
{
    const QStringList names{
        TemplateMatcher::getMeasureName(TemplateMatcher::MEASURE_CORRELATION),
        TemplateMatcher::getMeasureName(TemplateMatcher::MEASURE_NORMALIZED_CORRELATION),
        TemplateMatcher::getMeasureName(TemplateMatcher::MEASURE_EXACT_CORRELATION)};
    const int measure = AskChoice(this, tr("Matching Algorithm"), tr("Algorithm: "), names,
                                  TemplateMatcher::MEASURE_EXACT_CORRELATION);
    if (measure == -1)
        return false;
    m_Measure = measure;
    return true;
}

bool TemplateSearchPage::askAttributes()
{
    const QList<PatternsDataObject*> patterns{m_Pattern.get()};
    ModalDialog<AttributeMatchDialog> dialog(patterns, m_DataSet, this);
    if (!dialog.IsAccepted())
        return false;
    m_AttributeMap = dialog->GetAttributeMap();
    return true;
}

void TemplateSearchPage::search()
{
    auto matcher = std::make_unique<TemplateMatcher>(m_DataSet, m_Pattern.get(), 0, m_Measure);
    // Nobody can cancel it, though the matcher could stop: the page would have nothing to show.
    DialogProgress progress(this, tr("Template Matcher"));
    progress.SetLabelText(tr("Initalizing Template Matcher"));
    progress.SetRange(0, 2);
    if (!matcher->Convolve(progress, m_AttributeMap, m_CutCollection, m_SearchMode)) {
        ShowUserError(this, tr("Error"), tr("Error:") + matcher->getErrorMessage());
        return;
    }
    m_Matcher = std::move(matcher);
    readRange();
    progress.SetLabelText(tr("Updating GUI"));
    showResults();
}

void TemplateSearchPage::readRange()
{
    m_MinValue = -1;
    m_MaxValue = 1;
    if (m_Measure != TemplateMatcher::MEASURE_CORRELATION)
        return;
    const SearchResults found = searchResults();
    // From the first step that was searched on: the mark of one that was not would be the minimum.
    const int first = FirstSearchedStep(found);
    if (first == found.m_Steps)
        return;
    std::vector<float*> searched(found.m_Values, found.m_Values + found.m_Factors);
    std::for_each(searched.begin(), searched.end(), [=](float*& values) { values += first; });
    TemplateMatcher::normalizeResults(searched.data(), found.m_Factors, found.m_Steps - first,
                                      m_MinValue, m_MaxValue);
}

SearchResults TemplateSearchPage::searchResults() const
{
    if (!m_Matcher)
        return {};
    return {m_Matcher->getResults(), m_Pattern->GetSignalCollections().size(),
            m_DataSet->GetRowCount()};
}
