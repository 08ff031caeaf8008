#pragma once

#include "searchmatch.h"
#include "selectionmultiplelineplotwidget.h"
#include <vector>

/// Matches of a search over each other. Of very many only some are drawn, from the first to the
/// last; a box rejects all with a value in it, drawn or not.
class MatchLinesPlot : public SelectionMultipleLinePlotWidget
{
    Q_OBJECT
public:
    explicit MatchLinesPlot(DataSet* dataSet, QWidget* parent = nullptr);

    static constexpr int MostLines = 5000;

    /// Replaces the lines. attribute: -1 for none, then nothing is drawn.
    void ShowMatches(const SearchMatches& matches, int attribute);
    void ShowAttribute(int attribute);

signals:
    /// The matches in a box that the user drags; 0 when it is gone.
    void AboutToReject(int matches);
    /// The user has rejected the matches on these places, ascending.
    void PlacesRejected(const std::vector<int>& places);

protected:
    /// The places of matches, not of lines.
    std::vector<int> findResults(const QRect& box) const override;
    void dragBox(const QRect& box) override;
    void rejectLines(const std::vector<int>& places) override;

private:
    DataSet* m_DataSet;
    int m_Attribute = -1;
    // With the row at the end of each, so that also a match of one row shows.
    std::vector<RowSpan> m_Rows;
};
