#include "resultfilterpage.h"

#include "betterfirst.h"
#include "cutcollection.h"
#include "dialogprogress.h"
#include "insertionforecast.h"
#include "matchpositionsbox.h"
#include "overlaidmatchesbox.h"
#include "patternsdataobject.h"
#include "thresholdslider.h"
#include <QAbstractSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace
{

constexpr float initialThreshold = 0.8F;

} // namespace

ResultFilterPage::ResultFilterPage(DataSet* dataSet, CutCollection* cuts,
                                   CutSegment::SEGMENT_STATE searchMode,
                                   const QList<int>* patternIds, QWidget* parent)
    : TemplateSearchPage(dataSet, cuts, searchMode, patternIds, parent),
      m_ThresholdSlider(new ThresholdSlider(int(initialThreshold * 100))),
      m_Statistics(new QLabel(tr("Statistics: "))), m_RejectionText(new QLabel),
      m_BringBack(new QPushButton(tr("Bring Back"))), m_ThresholdBox(makeThresholdBox()),
      m_Forecast(new InsertionForecast(cuts, searchMode)),
      m_Positions(new MatchPositionsBox(dataSet)), m_Overlays(new OverlaidMatchesBox)
{
    connectBoxes();
    auto* layout = new QGridLayout(this);
    layout->addWidget(m_ThresholdBox, 0, 0);
    layout->addWidget(makeForecastBox(), 0, 1);
    layout->addWidget(m_Positions, 1, 0);
    auto* right = new QVBoxLayout;
    right->addWidget(m_Overlays, 1);
    right->addLayout(makeRejectionRow());
    layout->addLayout(right, 1, 1);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    clearResults();
}

void ResultFilterPage::connectBoxes()
{
    connect(m_Positions, &MatchPositionsBox::ItemsRemoved, this,
            [this] { reject(m_Positions->GetRemovedSteps()); });
    connect(m_Overlays, &OverlaidMatchesBox::StepsRejected, this, &ResultFilterPage::reject);
    connect(m_Positions, &MatchPositionsBox::AboutToReject, this,
            &ResultFilterPage::showAboutToReject);
    connect(m_Overlays, &OverlaidMatchesBox::AboutToReject, this,
            &ResultFilterPage::showAboutToReject);
    connect(m_Overlays, &OverlaidMatchesBox::AlphaChanged, this,
            &ResultFilterPage::setGraphAlphaValues);
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

// Beside the threshold, as a small screen has to hold the maps below that.
QGroupBox* ResultFilterPage::makeForecastBox()
{
    auto* box = new QGroupBox(tr("Results"));
    (new QVBoxLayout(box))->addWidget(m_Forecast);
    return box;
}

QLayout* ResultFilterPage::makeRejectionRow()
{
    // A map that changed its size would lose the band that the text tells of.
    m_RejectionText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_BringBack->setToolTip(tr("Bring back the matches of the last rejection"));
    // Enter belongs to the wizard.
    m_BringBack->setAutoDefault(false);
    connect(m_BringBack, &QPushButton::clicked, this, &ResultFilterPage::BringBack);
    auto* row = new QHBoxLayout;
    row->addWidget(m_RejectionText, 1);
    row->addWidget(m_BringBack);
    return row;
}

void ResultFilterPage::clearResults()
{
    m_Results = {};
    m_Pattern = nullptr;
    m_Widths.clear();
    m_Rejections.Clear();
    initCenterPointMemory();
    showRejections();
    m_Forecast->SetMatches({});
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
    m_Rejections.Clear();
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
    m_CenterPoints = std::make_shared<CenterPoints>(KeepBetterMatches(
        ::computeCenterPoints(m_Results, m_Widths, m_Threshold), m_Widths, m_Results));
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
    m_Positions->SetRemovedSteps(m_Rejections.GetSteps());
    m_Positions->SetMatches(m_CenterPoints, m_OldCenterPoints);
    const CenterPoints matches = acceptedMatches();
    m_Overlays->ShowMatches(matches, m_Widths);
    m_Forecast->SetMatches(ExtentsOfMatches(matches, *m_Pattern, m_Results.m_Steps));
    m_Statistics->setText(tr("Statistics: %1 matches found").arg(CountMatches(matches)));
    showRejections();
}

void ResultFilterPage::setGraphAlphaValues()
{
    m_Overlays->SetAlphaValues();
}

CenterPoints ResultFilterPage::acceptedMatches() const
{
    return WithoutSteps(*m_CenterPoints, m_Rejections.GetSteps());
}

void ResultFilterPage::reject(const std::vector<int>& steps)
{
    m_Rejections.Reject(steps);
    vizResults();
}

void ResultFilterPage::BringBack()
{
    m_Rejections.BringBack();
    vizResults();
}

void ResultFilterPage::showRejections()
{
    const size_t rejected = m_Rejections.GetSteps().size();
    m_RejectionText->setText(rejected == 0 ? QString() : tr("%1 rejected").arg(rejected));
    m_BringBack->setEnabled(rejected > 0);
}

void ResultFilterPage::showAboutToReject(int matches)
{
    if (matches == 0)
        showRejections();
    else
        m_RejectionText->setText(tr("%1 about to be rejected").arg(matches));
}

bool ResultFilterPage::validatePage()
{
    if (!HasResults() || !m_Forecast->AgreesToInsert())
        return false;
    DialogProgress progress(this, tr("Inserting Cuts"));
    m_Forecast->Insert(progress);
    return true;
}

void ResultFilterPage::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || !qobject_cast<QAbstractSpinBox*>(focusWidget()))
        TemplateSearchPage::keyPressEvent(event);
}
