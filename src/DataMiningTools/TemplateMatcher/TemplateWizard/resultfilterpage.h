#pragma once

#include "cutsegment.h"
#include "matchrejections.h"
#include "templatesearchpage.h"

class InsertionForecast;
class MatchPositionsBox;
class OverlaidMatchesBox;
class QGroupBox;
class QLabel;
class QPushButton;
class ThresholdSlider;

/// Lets the user set the confidence that a match needs and reject single matches. The rest become
/// segments when the wizard is finished; until then the cuts are not touched.
class ResultFilterPage : public TemplateSearchPage
{
    Q_OBJECT
public:
    /// patternIds: the chosen templates, of which the first is searched; the caller's.
    ResultFilterPage(DataSet* dataSet, CutCollection* cuts, CutSegment::SEGMENT_STATE searchMode,
                     const QList<int>* patternIds, QWidget* parent = nullptr);

    /// Shows results, which stay the caller's, as does the pattern. attributeMap: from the
    /// pattern's attribute names to columns.
    void SetResults(float** results, int resultSizeX, int resultSizeY, PatternsDataObject* pattern,
                    float threshold, const QHash<QString, int>& attributeMap);
    bool HasResults() const { return !m_Results.IsEmpty(); }

    /// Makes the matches that were not rejected into segments, after a search that refines in
    /// place of the earlier ones. False on an empty page, and when the user keeps the results
    /// that would go.
    bool validatePage() override;

public slots:
    void lowerThresholdChanged(int value);
    void setNormThreshold(int value);
    void computeCenterPoints();
    void vizResults();
    void setGraphAlphaValues();
    /// Undoes the last rejection.
    void BringBack();

protected:
    void clearResults() override;
    void showResults() override;
    /// Enter in a field takes the number and does not finish.
    void keyPressEvent(QKeyEvent* event) override;

private:
    QGroupBox* makeThresholdBox();
    QGroupBox* makeForecastBox();
    QLayout* makeRejectionRow();
    void connectBoxes();
    void initCenterPointMemory();
    CenterPoints acceptedMatches() const;
    void reject(const std::vector<int>& steps);
    void showRejections();
    void showAboutToReject(int matches);

    SearchResults m_Results;
    PatternsDataObject* m_Pattern = nullptr;
    std::vector<int> m_Widths;
    // Those before the last change of the threshold are kept for the map.
    std::shared_ptr<const CenterPoints> m_CenterPoints;
    std::shared_ptr<const CenterPoints> m_OldCenterPoints;
    MatchRejections m_Rejections;
    float m_Threshold = 0;
    ThresholdSlider* m_ThresholdSlider;
    QLabel* m_Statistics;
    QLabel* m_RejectionText;
    QPushButton* m_BringBack;
    QGroupBox* m_ThresholdBox;
    InsertionForecast* m_Forecast;
    MatchPositionsBox* m_Positions;
    OverlaidMatchesBox* m_Overlays;
};
