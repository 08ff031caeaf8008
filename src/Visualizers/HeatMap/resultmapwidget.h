#pragma once

#include "cachedpicture.h"
#include "matchextraction.h"
#include "plotmargin.h"
#include "rubberband.h"
#include "stepscale.h"
#include <QList>
#include <QWidget>
#include <memory>

class DataSet;

/// The right margin that lets a plot area above a map of the same width end where the map does.
constexpr int MapAlignedMargin = PlotLeftMargin - 5;

/// What all maps of search results share: where the steps stand, and a band of pixels that the
/// user drags. Dragged with the left button it removes the matches on it, with the right one it
/// opens a plot of the data there.
///
/// Subclasses paint. What they need of the results and of the matches they reduce to pixels
/// beforehand; both is asked for only when it has changed.
class ResultMapWidget : public QWidget
{
    Q_OBJECT
public:
    /// The results stay the caller's. Forgets the matches and what was removed.
    void SetResults(float** results, int factors, int steps);
    /// The matches that can be seen and removed.
    void SetMatches(const std::shared_ptr<const CenterPoints>& matches);
    /// The data and the attribute that a plot of a span shows.
    void SetDataSet(DataSet* dataSet) { m_DataSet = dataSet; }
    void SetAttribute(int attribute) { m_Attribute = attribute; }

    /// All steps whose matches were removed, here or elsewhere; ascending, each once.
    QList<int> GetRemovedSteps() const;

    /// These are the steps whose matches are removed, whatever was removed before; ascending.
    void SetRemovedSteps(const std::vector<int>& steps);

    QSize sizeHint() const override { return {300, 40}; }

public slots:
    /// Matches on these steps have been removed elsewhere.
    void ItemsRemovedFromPlot(const QList<int>& steps);
    void SetThreshold(float threshold);
    /// A scheme of ColorMaps.
    void SetColorMap(int scheme);

signals:
    /// The user has removed matches.
    void ItemsRemoved();
    /// How many matches are on the band that the user drags to remove them; 0 without a band.
    void AboutToRemove(int matches);

protected:
    explicit ResultMapWidget(QWidget* parent);

    /// Every step of the results over the width of the widget.
    virtual StepScale makeScale() const;
    virtual void reduceResults(const StepScale&) {}
    /// matches: those that were not removed.
    virtual void reduceMatches(const CenterPoints&, const StepScale&) {}
    virtual void paintMap(QPainter& painter) = 0;

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    const SearchResults& results() const { return m_Results; }
    float threshold() const { return m_Threshold; }
    QColor colorOf(float confidence) const;
    /// One step's width in whole pixels, at least one.
    int stepWidth() const;
    /// Where the row of a frequency factor stands, of as many rows as there are factors.
    QRect rowOf(int factor) const;
    /// What is shown without being reduced to pixels has become other.
    void invalidatePicture();
    /// The scale or the results have become others.
    void markStale();
    void markMatchesStale();

private:
    CenterPoints visibleMatches() const;
    void reduce(const StepScale& scale);
    std::vector<int> stepsOnBand(const RubberBand& band) const;
    void removeMatches(std::vector<int> steps);
    void showSpan(double first, double last);
    void addRemovedSteps(std::vector<int> steps);

    SearchResults m_Results;
    std::shared_ptr<const CenterPoints> m_Matches;
    std::vector<int> m_RemovedSteps;
    DataSet* m_DataSet = nullptr;
    int m_Attribute = 0;
    float m_Threshold = 0;
    int m_ColorMap;
    RubberBand m_Band;
    // The ground of the widget stays to be seen in the gutter.
    CachedPicture m_Picture{Qt::transparent};
    bool m_AreResultsStale = true;
    bool m_AreMatchesStale = true;
};
