#pragma once

#include "cutsegment.h"
#include "templatesearchpage.h"

class PlotAreaWidget;
class QGroupBox;
class QLabel;
class ResultFilterPage;
class ResultMapWidget;
class ThresholdMap;
class ThresholdSlider;
class TwoDimensionalHeatMapViz;

/// An older form of ResultFilterPage without single matches: shows the template and lets the user
/// find a threshold, which it hands on. No wizard adds it.
class TemplateMatcherPage : public TemplateSearchPage
{
    Q_OBJECT
public:
    /// resultPage: the page that follows.
    TemplateMatcherPage(DataSet* dataSet, CutCollection* cuts, CutSegment::SEGMENT_STATE searchMode,
                        const QList<int>* patternIds, ResultFilterPage* resultPage,
                        QWidget* parent = nullptr);

    /// Hands results and threshold to the page that follows. False on an empty page.
    bool validatePage() override;

public slots:
    void setNormThreshold(int value);
    /// Opens a plot of the first signal of each frequency factor.
    void viewSignal();
    void colorMapChanged(int scheme);

protected:
    void clearResults() override;
    void showResults() override;

private:
    QGroupBox* makeTemplateBox();
    QGroupBox* makeResultBox();
    QLayout* makeResultFields();
    QList<ResultMapWidget*> maps() const;

    ResultFilterPage* m_ResultPage;
    QLabel* m_Name;
    QLabel* m_Description;
    PlotAreaWidget* m_Plot;
    ThresholdSlider* m_ThresholdSlider;
    TwoDimensionalHeatMapViz* m_HeatMap;
    ThresholdMap* m_ThresholdMap;
};
