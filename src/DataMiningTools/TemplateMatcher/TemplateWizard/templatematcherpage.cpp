#include "templatematcherpage.h"

#include "attributebox.h"
#include "colormaps.h"
#include "dataset.h"
#include "oldlineplotwidget.h"
#include "patternsdataobject.h"
#include "plotareawidget.h"
#include "resultfilterpage.h"
#include "thresholdmap.h"
#include "thresholdslider.h"
#include "twodimensionalheatmapviz.h"
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace
{

constexpr int initialThreshold = 75;

QLabel* makeText()
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

TemplateMatcherPage::TemplateMatcherPage(DataSet* dataSet, CutCollection* cuts,
                                         CutSegment::SEGMENT_STATE searchMode,
                                         const QList<int>* patternIds, ResultFilterPage* resultPage,
                                         QWidget* parent)
    : TemplateSearchPage(dataSet, cuts, searchMode, patternIds, parent), m_ResultPage(resultPage),
      m_Name(makeText()), m_Description(makeText()), m_Plot(new PlotAreaWidget),
      m_ThresholdSlider(new ThresholdSlider(initialThreshold)),
      m_HeatMap(new TwoDimensionalHeatMapViz), m_ThresholdMap(new ThresholdMap)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeTemplateBox());
    layout->addWidget(makeResultBox(), 1);
    m_Plot->SetDataSet(dataSet);
    m_Plot->SetRightMargin(MapAlignedMargin);
    if (dataSet->GetAttributeCount() > 0)
        m_Plot->ClearAndAddPlot(0);
    setNormThreshold(initialThreshold);
}

QGroupBox* TemplateMatcherPage::makeTemplateBox()
{
    auto* box = new QGroupBox(tr("Signal Template"));
    auto* view = new QPushButton(tr("Load Signal"));
    view->setToolTip(tr("Show the signals of the template"));
    connect(view, &QPushButton::clicked, this, &TemplateMatcherPage::viewSignal);
    auto* form = new QFormLayout(box);
    form->addRow(tr("Template name: "), m_Name);
    form->addRow(tr("Template description: "), m_Description);
    form->addRow(view);
    return box;
}

QGroupBox* TemplateMatcherPage::makeResultBox()
{
    auto* box = new QGroupBox(tr("Results"));
    m_Plot->setMinimumHeight(150);
    auto* layout = new QVBoxLayout(box);
    layout->addLayout(makeResultFields());
    layout->addWidget(m_Plot, 1);
    for (ResultMapWidget* map : maps()) {
        map->SetDataSet(dataSet());
        layout->addWidget(map);
    }
    return box;
}

QList<ResultMapWidget*> TemplateMatcherPage::maps() const
{
    return {m_HeatMap, m_ThresholdMap};
}

QLayout* TemplateMatcherPage::makeResultFields()
{
    auto* colorMaps = new QComboBox;
    for (int scheme = 0; !ColorMaps::GetColorMapName(scheme).isEmpty(); ++scheme)
        colorMaps->addItem(ColorMaps::GetColorMapName(scheme));
    colorMaps->setCurrentIndex(colorMaps->count() - 1);
    auto* attributes = new AttributeBox(dataSet(), tr("The attribute that plot and maps show"));
    connect(colorMaps, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &TemplateMatcherPage::colorMapChanged);
    connect(attributes, QOverload<int>::of(&QComboBox::activated), m_Plot,
            &PlotAreaWidget::ClearAndAddPlot);
    for (ResultMapWidget* map : maps())
        connect(attributes, QOverload<int>::of(&QComboBox::activated), map,
                &ResultMapWidget::SetAttribute);
    connect(m_ThresholdSlider, &ThresholdSlider::ValueChanged, this,
            &TemplateMatcherPage::setNormThreshold);
    auto* form = new QFormLayout;
    form->addRow(tr("Color Map:"), colorMaps);
    form->addRow(tr("Data Attribute: "), attributes);
    form->addRow(tr("Threshold amount: "), m_ThresholdSlider);
    return form;
}

void TemplateMatcherPage::clearResults()
{
    m_Name->clear();
    m_Description->clear();
    for (ResultMapWidget* map : maps())
        map->SetResults(nullptr, 0, 0);
}

void TemplateMatcherPage::showResults()
{
    const SearchResults found = searchResults();
    m_Name->setText(pattern()->GetName());
    m_Description->setText(pattern()->GetDesc());
    for (ResultMapWidget* map : maps())
        map->SetResults(found.m_Values, found.m_Factors, found.m_Steps);
}

void TemplateMatcherPage::setNormThreshold(int value)
{
    m_ThresholdMap->SetThreshold(ThresholdSlider::ToThreshold(value));
}

void TemplateMatcherPage::colorMapChanged(int scheme)
{
    for (ResultMapWidget* map : maps())
        map->SetColorMap(scheme);
}

void TemplateMatcherPage::viewSignal()
{
    if (!pattern())
        return;
    for (const auto* collection : pattern()->GetSignalCollections()) {
        if (collection->GetSignals().isEmpty())
            continue;
        const auto* signal = collection->GetSignals().first();
        auto* window = new OldLinePlotWidget(signal->GetValues(), signal->GetAttributeName(), this);
        window->setWindowFlag(Qt::Window);
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->resize(500, 300);
        window->show();
    }
}

bool TemplateMatcherPage::validatePage()
{
    const SearchResults found = searchResults();
    if (found.IsEmpty())
        return false;
    m_ResultPage->SetResults(found.m_Values, found.m_Factors, found.m_Steps, pattern(),
                             ThresholdSlider::ToThreshold(m_ThresholdSlider->GetValue()),
                             attributeMap());
    return true;
}
