#include "matchoverlayplot.h"

#include "dataset.h"
#include "grouppalette.h"
#include "oldmultiplelineplot.h"
#include "signaltemplatedataobject.h"
#include "verticalaxis.h"

MatchOverlayPlot::MatchOverlayPlot(DataSet* dataSet, const SignalTemplateDataObject& signal,
                                   int attribute, QWidget* parent)
    : SelectionMultipleLinePlotWidget(parent), m_DataSet(dataSet), m_AttributeId(attribute),
      m_Template(signal.GetValues())
{
    setMinimumHeight(150);
    setCursor(Qt::CrossCursor);
    setToolTip(
        tr("The signal of the template in colour, and the matches. Of many matches only some "
           "are drawn, evenly chosen. Drag a box over lines to reject those matches."));
}

void MatchOverlayPlot::ShowMatches(const std::vector<CenterPoint>& matches,
                                   const std::vector<int>& widths)
{
    ClearLines();
    m_Matches.clear();
    setAxis();
    AddLine(m_Template.data(), int(m_Template.size()), GroupColor(m_AttributeId));
    for (const CenterPoint& match : matches) {
        const RowSpan rows =
            ExtentOfMatch(match.m_Step, widths[size_t(match.m_Factor)], m_DataSet->GetRowCount());
        AddLine(m_DataSet, m_AttributeId, rows.m_From, rows.m_To, Qt::black);
        m_Matches.append({rows.m_From, match.m_Step});
    }
    RepaintLines();
}

// For the template, when there is no match whose line would do it.
void MatchOverlayPlot::setAxis()
{
    VerticalAxis* axis = plot().GetVerticalAxis();
    axis->SetTitle(m_DataSet->GetAttributeName(m_AttributeId));
    axis->SetMinimum(m_DataSet->GetMinValue(m_AttributeId));
    axis->SetMaximum(m_DataSet->GetMaxValue(m_AttributeId));
}

void MatchOverlayPlot::rejectLines(const std::vector<int>& lines)
{
    for (const int line : lines)
        m_RemovedMatches.append(m_Matches[line - 1]);
    SelectionMultipleLinePlotWidget::rejectLines(lines);
}
