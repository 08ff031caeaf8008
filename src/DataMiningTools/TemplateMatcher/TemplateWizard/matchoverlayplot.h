#pragma once

#include "matchextraction.h"
#include "selectionmultiplelineplotwidget.h"
#include <vector>

class SignalTemplateDataObject;

/// One attribute of the matches over each other, and the template's signal above them.
class MatchOverlayPlot : public SelectionMultipleLinePlotWidget
{
    Q_OBJECT
public:
    /// attribute: the one of the data that the signal was searched in.
    MatchOverlayPlot(DataSet* dataSet, const SignalTemplateDataObject& signal, int attribute,
                     QWidget* parent = nullptr);

    /// Replaces the lines by those of the chosen matches. all: those that a box can reject, with
    /// or without a line. widths: of the template, per frequency factor.
    void ShowMatches(const std::vector<CenterPoint>& chosen, const std::vector<CenterPoint>& all,
                     const std::vector<int>& widths);

signals:
    /// The matches in a box that the user drags; 0 when it is gone.
    void AboutToReject(int matches);
    /// The user has rejected the matches on these steps, ascending.
    void StepsRejected(const std::vector<int>& steps);

protected:
    /// The places of matches, not of lines.
    std::vector<int> findResults(const QRect& box) const override;
    void dragBox(const QRect& box) override;
    void rejectLines(const std::vector<int>& matches) override;

private:
    void setAxis();
    RowSpan rowsOf(const CenterPoint& match, const std::vector<int>& widths) const;

    DataSet* m_DataSet;
    const int m_AttributeId;
    std::vector<double> m_Template;
    std::vector<CenterPoint> m_Matches;
    // Of these.
    std::vector<RowSpan> m_Rows;
};
