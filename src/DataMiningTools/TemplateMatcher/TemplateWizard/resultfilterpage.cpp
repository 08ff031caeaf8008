#include "resultfilterpage.h"

#include "cutcollection.h"
#include "insertmatches.h"
#include "matchpositionsbox.h"
#include "overlaidmatchesbox.h"
#include "patternsdataobject.h"
#include "progress.h"
#include "thresholdslider.h"
#include <QAbstractSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <algorithm>

namespace
{

constexpr float initialThreshold = 0.8F;

} // namespace

ResultFilterPage::ResultFilterPage(DataSet* dataSet, CutCollection* cuts,
                                   CutSegment::SEGMENT_STATE searchMode,
                                   const QList<int>* patternIds, QWidget* parent)
    : TemplateSearchPage(dataSet, cuts, searchMode, patternIds, parent),
      m_ThresholdSlider(new ThresholdSlider(int(initialThreshold * 100))),
      m_Statistics(new QLabel(tr("Statistics: "))), m_ThresholdBox(makeThresholdBox()),
      m_Positions(new MatchPositionsBox(dataSet)), m_Overlays(new OverlaidMatchesBox)
{
    connect(m_Positions, &MatchPositionsBox::ItemsRemoved, this, &ResultFilterPage::vizResults);
    connect(m_Overlays, &OverlaidMatchesBox::ItemsRemoved, this, &ResultFilterPage::vizResults);
    connect(m_Overlays, &OverlaidMatchesBox::AlphaChanged, this,
            &ResultFilterPage::setGraphAlphaValues);
    auto* left = new QVBoxLayout;
    left->addWidget(m_ThresholdBox);
    left->addWidget(m_Positions, 1);
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left, 1);
    layout->addWidget(m_Overlays, 1);
    clearResults();
}

QGroupBox* ResultFilterPage::makeThresholdBox()
{
    auto* box = new QGroupBox(tr("Threshold parameters"));
    box->setMaximumWidth(500);
    connect(m_ThresholdSlider, &ThresholdSlider::ValueChanged, this,
            &ResultFilterPage::lowerThresholdChanged);
    connect(m_ThresholdSlider, &ThresholdSlider::ValueChanged, this,
            &ResultFilterPage::setNormThreshold);
    auto* form = new QFormLayout(box);
    form->addRow(tr("Threshold Amount:"), m_ThresholdSlider);
    form->addRow(m_Statistics);
    return box;
}

void ResultFilterPage::clearResults()
{
    m_Results = {};
    m_Pattern = nullptr;
    m_Widths.clear();
    initCenterPointMemory();
    m_Overlays->Clear();
    m_Positions->SetResults({}, -1, 1);
    m_Statistics->setText(tr("Statistics: "));
    m_ThresholdBox->setEnabled(false);
}

void ResultFilterPage::showResults()
{
    const SearchResults found = searchResults();
    SetResults(found.m_Values, found.m_Factors, found.m_Steps, pattern(), initialThreshold,
               attributeMap());
}

void ResultFilterPage::SetResults(float** results, int resultSizeX, int resultSizeY,
                                  PatternsDataObject* pattern, float threshold,
                                  const QHash<QString, int>& attributeMap)
{
    m_Results = {results, resultSizeX, resultSizeY};
    m_Pattern = pattern;
    m_Widths = TemplateWidths(*pattern);
    m_Threshold = threshold;
    m_ThresholdSlider->SetValue(int(threshold * 100));
    m_ThresholdBox->setEnabled(true);
    initCenterPointMemory();
    computeCenterPoints();
    m_Overlays->SetPattern(dataSet(), *pattern, attributeMap);
    m_Positions->SetResults(m_Results, minimum(), maximum());
    vizResults();
    setGraphAlphaValues();
    m_Positions->SetThreshold(threshold);
}

void ResultFilterPage::initCenterPointMemory()
{
    m_CenterPoints = std::make_shared<CenterPoints>();
    m_OldCenterPoints = m_CenterPoints;
}

void ResultFilterPage::computeCenterPoints()
{
    m_OldCenterPoints = m_CenterPoints;
    m_CenterPoints =
        std::make_shared<CenterPoints>(::computeCenterPoints(m_Results, m_Widths, m_Threshold));
}

void ResultFilterPage::lowerThresholdChanged(int value)
{
    m_Threshold = ThresholdSlider::ToThreshold(value);
    computeCenterPoints();
    vizResults();
    setGraphAlphaValues();
}

void ResultFilterPage::setNormThreshold(int value)
{
    m_Positions->SetThreshold(ThresholdSlider::ToThreshold(value));
}

void ResultFilterPage::vizResults()
{
    const std::vector<int> removed = removedSteps();
    m_Positions->ItemsRemovedFromPlot({removed.begin(), removed.end()});
    m_Positions->SetMatches(m_CenterPoints, m_OldCenterPoints);
    const CenterPoints matches = WithoutSteps(*m_CenterPoints, removed);
    m_Overlays->ShowMatches(matches, m_Widths);
    m_Statistics->setText(tr("Statistics: %1 matches found").arg(CountMatches(matches)));
}

void ResultFilterPage::setGraphAlphaValues()
{
    m_Overlays->SetAlphaValues();
}

std::vector<int> ResultFilterPage::removedSteps() const
{
    std::vector<int> steps;
    for (const auto& match : m_Overlays->GetRemovedMatches())
        steps.push_back(match.second);
    for (const int step : m_Positions->GetRemovedSteps())
        steps.push_back(step);
    std::sort(steps.begin(), steps.end());
    steps.erase(std::unique(steps.begin(), steps.end()), steps.end());
    return steps;
}

bool ResultFilterPage::validatePage()
{
    if (!HasResults())
        return false;
    const CenterPoints matches = WithoutSteps(*m_CenterPoints, removedSteps());
    NoProgress progress;
    InsertMatches(*cuts(), ExtentsOfMatches(matches, *m_Pattern, m_Results.m_Steps),
                  {searchMode(), true}, progress);
    return true;
}

void ResultFilterPage::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || !qobject_cast<QAbstractSpinBox*>(focusWidget()))
        TemplateSearchPage::keyPressEvent(event);
}
