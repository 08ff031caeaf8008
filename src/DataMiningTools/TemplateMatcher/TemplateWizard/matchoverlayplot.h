#pragma once

#include "matchextraction.h"
#include "selectionmultiplelineplotwidget.h"
#include <QList>
#include <QPair>

class SignalTemplateDataObject;

/// One attribute of the matches over each other, and the template's signal above them.
class MatchOverlayPlot : public SelectionMultipleLinePlotWidget
{
    Q_OBJECT
public:
    /// attribute: the one of the data that the signal was searched in.
    MatchOverlayPlot(DataSet* dataSet, const SignalTemplateDataObject& signal, int attribute,
                     QWidget* parent = nullptr);

    /// Replaces the lines. widths: of the template, per frequency factor.
    void ShowMatches(const std::vector<CenterPoint>& matches, const std::vector<int>& widths);

    /// The first row and the centre of each match that was rejected here.
    const QList<QPair<int, int>>& GetRemovedMatches() const { return m_RemovedMatches; }

protected:
    /// The first line is the template's.
    bool isResult(int line) const override { return line > 0; }
    /// Also remembers the matches.
    void rejectLines(const std::vector<int>& lines) override;

private:
    void setAxis();

    DataSet* m_DataSet;
    const int m_AttributeId;
    std::vector<double> m_Template;
    // In the order of the lines, which the template's precedes.
    QList<QPair<int, int>> m_Matches;
    QList<QPair<int, int>> m_RemovedMatches;
};
