#include "matchoverlayplot.h"

#include "dataset.h"
#include "grouppalette.h"
#include "oldmultiplelineplot.h"
#include "signaltemplatedataobject.h"
#include "verticalaxis.h"
#include <algorithm>

MatchOverlayPlot::MatchOverlayPlot(DataSet* dataSet, const SignalTemplateDataObject& signal,
                                   int attribute, QWidget* parent)
    : SelectionMultipleLinePlotWidget(parent), m_DataSet(dataSet), m_AttributeId(attribute),
      m_Template(signal.GetValues())
{
    setMinimumHeight(150);
    setCursor(Qt::CrossCursor);
    setToolTip(
        tr("The signal of the template in colour, and the matches. Of many matches only some "
           "are drawn, evenly chosen. Drag a box to reject all matches with a value in it, drawn "
           "or not."));
}

void MatchOverlayPlot::ShowMatches(const std::vector<CenterPoint>& chosen,
                                   const std::vector<CenterPoint>& all,
                                   const std::vector<int>& widths)
{
    ClearLines();
    setAxis();
    AddLine(m_Template.data(), int(m_Template.size()), GroupColor(m_AttributeId));
    for (const CenterPoint& match : chosen) {
        const RowSpan rows = rowsOf(match, widths);
        AddLine(m_DataSet, m_AttributeId, rows.m_From, rows.m_To, Qt::black);
    }
    m_Matches = all;
    m_Rows.clear();
    for (const CenterPoint& match : all)
        m_Rows.push_back(rowsOf(match, widths));
    RepaintLines();
}

RowSpan MatchOverlayPlot::rowsOf(const CenterPoint& match, const std::vector<int>& widths) const
{
    return ExtentOfMatch(match.m_Step, widths[size_t(match.m_Factor)], m_DataSet->GetRowCount());
}

// For the template, when there is no match whose line would do it.
void MatchOverlayPlot::setAxis()
{
    VerticalAxis* axis = plot().GetVerticalAxis();
    axis->SetTitle(m_DataSet->GetAttributeName(m_AttributeId));
    axis->SetMinimum(m_DataSet->GetMinValue(m_AttributeId));
    axis->SetMaximum(m_DataSet->GetMaxValue(m_AttributeId));
}

std::vector<int> MatchOverlayPlot::findResults(const QRect& box) const
{
    return plot().FindSpans(*m_DataSet, m_AttributeId, m_Rows, box);
}

void MatchOverlayPlot::dragBox(const QRect& box)
{
    emit AboutToReject(box.isEmpty() ? 0 : int(findResults(box).size()));
}

void MatchOverlayPlot::rejectLines(const std::vector<int>& matches)
{
    std::vector<int> steps;
    for (const int match : matches)
        steps.push_back(m_Matches[size_t(match)].m_Step);
    std::sort(steps.begin(), steps.end());
    emit StepsRejected(steps);
    emit ItemsRemoved();
}
