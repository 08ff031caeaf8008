#include "matchpositionsbox.h"

#include "attributebox.h"
#include "dataset.h"
#include "linearcolormapwidget.h"
#include "plotareawidget.h"
#include "thresholdmap.h"
#include "thresholdmapdistribution.h"
#include "twodimensionalheatmapviz.h"
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

MatchPositionsBox::MatchPositionsBox(DataSet* dataSet, QWidget* parent)
    : QGroupBox(parent), m_DataSet(dataSet), m_Plot(new PlotAreaWidget),
      m_ColorMap(new LinearColorMapWidget), m_ThresholdMap(new ThresholdMap)
{
    setTitle(tr("Match Positions"));
    m_Plot->setMinimumHeight(150);
    m_Plot->SetDataSet(dataSet);
    m_Plot->SetRightMargin(MapAlignedMargin);
    auto* layout = new QVBoxLayout(this);
    // Plot and maps are one picture; and a small screen has to hold them all.
    layout->setSpacing(2);
    layout->addLayout(makeAttributeRow());
    layout->addWidget(m_Plot, 1);
    layout->addLayout(makeLegend());
    addMap(new TwoDimensionalHeatMapViz);
    layout->addWidget(new QLabel(tr("Extracted Matches:")));
    addMap(m_ThresholdMap);
    layout->addWidget(new QLabel(tr("Distribution of Extracted Matches:")));
    addMap(new ThresholdMapDistribution);
    showAttribute(0);
}

QLayout* MatchPositionsBox::makeAttributeRow()
{
    auto* attributes = new AttributeBox(m_DataSet, tr("The attribute that plot and maps show"));
    attributes->setMaximumWidth(200);
    connect(attributes, QOverload<int>::of(&QComboBox::activated), this,
            &MatchPositionsBox::showAttribute);
    auto* form = new QFormLayout;
    form->addRow(tr("Data Attribute: "), attributes);
    return form;
}

QLayout* MatchPositionsBox::makeLegend()
{
    m_ColorMap->setFixedHeight(10);
    m_ColorMap->setMaximumWidth(150);
    auto* legend = new QHBoxLayout;
    legend->addWidget(new QLabel(tr("Confidence of Matches:")));
    legend->addWidget(m_ColorMap, 1);
    legend->addStretch();
    return legend;
}

void MatchPositionsBox::addMap(ResultMapWidget* map)
{
    map->SetDataSet(m_DataSet);
    connect(map, &ResultMapWidget::ItemsRemoved, this, &MatchPositionsBox::ItemsRemoved);
    connect(map, &ResultMapWidget::AboutToRemove, this, &MatchPositionsBox::AboutToReject);
    layout()->addWidget(map);
    m_Maps.append(map);
}

void MatchPositionsBox::showAttribute(int attribute)
{
    if (attribute < 0 || attribute >= m_DataSet->GetAttributeCount())
        return;
    m_Plot->ClearAndAddPlot(attribute);
    for (ResultMapWidget* map : qAsConst(m_Maps))
        map->SetAttribute(attribute);
}

void MatchPositionsBox::SetResults(const SearchResults& results, float minimum, float maximum)
{
    m_ColorMap->SetRange(double(minimum), double(maximum));
    m_ThresholdMap->SetOldMatches(nullptr);
    for (ResultMapWidget* map : qAsConst(m_Maps))
        map->SetResults(results.m_Values, results.m_Factors, results.m_Steps);
}

void MatchPositionsBox::SetMatches(const std::shared_ptr<const CenterPoints>& matches,
                                   const std::shared_ptr<const CenterPoints>& oldMatches)
{
    m_ThresholdMap->SetOldMatches(oldMatches);
    for (ResultMapWidget* map : qAsConst(m_Maps))
        map->SetMatches(matches);
}

void MatchPositionsBox::SetThreshold(float threshold)
{
    for (ResultMapWidget* map : qAsConst(m_Maps))
        map->SetThreshold(threshold);
}

void MatchPositionsBox::SetRemovedSteps(const std::vector<int>& steps)
{
    for (ResultMapWidget* map : qAsConst(m_Maps))
        map->SetRemovedSteps(steps);
}

std::vector<int> MatchPositionsBox::GetRemovedSteps() const
{
    std::vector<int> removed;
    for (const ResultMapWidget* map : m_Maps) {
        const QList<int> steps = map->GetRemovedSteps();
        removed.insert(removed.end(), steps.begin(), steps.end());
    }
    std::sort(removed.begin(), removed.end());
    removed.erase(std::unique(removed.begin(), removed.end()), removed.end());
    return removed;
}
