#pragma once

#include "matchextraction.h"
#include <QGroupBox>
#include <QList>
#include <memory>

class DataSet;
class LinearColorMapWidget;
class PlotAreaWidget;
class ResultMapWidget;
class ThresholdMap;

/// Where the matches lie in the recording: the data and, under it, the maps of the results.
class MatchPositionsBox : public QGroupBox
{
    Q_OBJECT
public:
    explicit MatchPositionsBox(DataSet* dataSet, QWidget* parent = nullptr);

    /// The results stay the caller's. minimum and maximum: of the search, for the colours.
    void SetResults(const SearchResults& results, float minimum, float maximum);
    void SetMatches(const std::shared_ptr<const CenterPoints>& matches,
                    const std::shared_ptr<const CenterPoints>& oldMatches);
    void SetThreshold(float threshold);
    /// Matches on these steps, ascending, are not seen; all others are.
    void SetRemovedSteps(const std::vector<int>& steps);
    /// The steps whose matches were removed, ascending, each once.
    std::vector<int> GetRemovedSteps() const;

signals:
    void ItemsRemoved();
    /// The matches on a band that the user drags over a map; 0 when it is gone.
    void AboutToReject(int matches);

private:
    QLayout* makeAttributeRow();
    QLayout* makeLegend();
    void addMap(ResultMapWidget* map);
    void showAttribute(int attribute);

    DataSet* m_DataSet;
    PlotAreaWidget* m_Plot;
    LinearColorMapWidget* m_ColorMap;
    ThresholdMap* m_ThresholdMap;
    QList<ResultMapWidget*> m_Maps;
};
