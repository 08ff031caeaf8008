#include "thresholdfilterpage.h"

#include "cutcollection.h"
#include "dataset.h"
#include "dialogprogress.h"
#include "searchrows.h"
#include "thresholdparameterwidget.h"
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QSpinBox>

ThresholdFilterPage::ThresholdFilterPage(DataSet* dataSet, const CutCollection* cuts,
                                         CutSegment::SEGMENT_STATE searchMode, QWidget* parent)
    : SearchFilterPage(tr("Extracted Results"), dataSet, parent), m_DataSet(dataSet),
      m_CutCollection(cuts), m_SearchMode(searchMode), m_Rows(new SearchRows),
      m_MinimumLength(new QSpinBox)
{
    setTitle(tr("Threshold Search"));
    m_MinimumLength->setRange(0, dataSet ? dataSet->GetRowCount() : 0);
    // A result needs two rows: its end is its last row, and the end row of a segment counts no
    // more.
    m_MinimumLength->setValue(1);
    m_MinimumLength->setToolTip(tr("Rows from the first row of a match to its last"));
    connect(m_MinimumLength, qOverload<int>(&QSpinBox::valueChanged), this,
            &ThresholdFilterPage::dropMatches);
    layOut(makeFields());
}

QWidget* ThresholdFilterPage::makeFields()
{
    auto* group = new QGroupBox(tr("Threshold Selection"));
    auto* add = new QPushButton(tr("Add Parameter"));
    add->setToolTip(tr("Matches are the rows that meet all parameters"));
    connect(add, &QPushButton::clicked, this, &ThresholdFilterPage::addThresholdParameter);
    auto* form = new QFormLayout;
    form->addRow(tr("Minimum Length"), m_MinimumLength);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(add, 0, Qt::AlignLeft);
    layout->addWidget(m_Rows);
    layout->addLayout(form);
    layout->addLayout(makeExtractRow());
    return group;
}

void ThresholdFilterPage::addThresholdParameter()
{
    auto* parameter = new ThresholdParameterWidget(m_DataSet);
    m_Parameters.append(parameter);
    m_Rows->AddRow(parameter);
    connect(parameter, &ThresholdParameterWidget::RemoveRequested, this,
            [this, parameter] { removeParameter(parameter); });
    connect(parameter, &ThresholdParameterWidget::ParameterChanged, this,
            &ThresholdFilterPage::dropMatches);
    dropMatches();
}

void ThresholdFilterPage::removeParameter(ThresholdParameterWidget* parameter)
{
    m_Parameters.removeOne(parameter);
    m_Rows->RemoveRow(parameter);
    dropMatches();
}

void ThresholdFilterPage::extractMatches()
{
    DialogProgress progress(this, tr("Threshold Extraction"), DialogProgress::CAN_STOP);
    progress.SetLabelText(tr("Initalizing Threshold Extractor"));
    progress.SetRange(0, 1 + (m_CutCollection ? m_CutCollection->GetSegmentCount() : 0));
    std::vector<ThresholdParameter> parameters;
    for (const ThresholdParameterWidget* parameter : qAsConst(m_Parameters))
        parameters.push_back(parameter->GetParameter());
    ThresholdExtractor extractor(m_DataSet, m_CutCollection, m_SearchMode);
    extractor.SetParameters(parameters);
    extractor.SetMinimumLength(m_MinimumLength->value());
    if (!extractor.Extract(progress))
        return;
    progress.SetLabelText(tr("Updating GUI"));
    showTested(parameters);
    showMatches(extractor.GetMatches());
}

// The user may look at another attribute meanwhile, as long as the test stays.
void ThresholdFilterPage::showTested(const std::vector<ThresholdParameter>& parameters)
{
    const int tested = parameters.empty() ? -1 : parameters.front().m_Attribute;
    if (tested != -1 && tested != m_TestedAttribute)
        showAttribute(tested);
    m_TestedAttribute = tested;
}
