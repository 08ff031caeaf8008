#include "matchlinesplot.h"

#include "dataset.h"
#include <algorithm>

MatchLinesPlot::MatchLinesPlot(DataSet* dataSet, QWidget* parent)
    : SelectionMultipleLinePlotWidget(parent), m_DataSet(dataSet)
{
    setToolTip(tr("Drag a box over the lines to reject all matches with a value in it, drawn or "
                  "not"));
}

void MatchLinesPlot::ShowMatches(const SearchMatches& matches, int attribute)
{
    m_Attribute = attribute;
    m_Rows.clear();
    ClearLines();
    if (attribute == -1)
        return;
    for (const SearchMatch& match : matches)
        m_Rows.push_back(
            {match.m_Rows.m_From, std::min(match.m_Rows.m_To + 1, m_DataSet->GetRowCount())});
    const size_t lines = std::min(m_Rows.size(), size_t(MostLines));
    for (size_t i = 0; i < lines; ++i) {
        const RowSpan& rows = m_Rows[i * m_Rows.size() / lines];
        AddLine(m_DataSet, attribute, rows.m_From, rows.m_To, Qt::black);
    }
}

void MatchLinesPlot::ShowAttribute(int attribute)
{
    m_Attribute = attribute;
    ChangeAttributeID(attribute);
}

std::vector<int> MatchLinesPlot::findResults(const QRect& box) const
{
    return m_Rows.empty() ? std::vector<int>()
                          : plot().FindSpans(*m_DataSet, m_Attribute, m_Rows, box);
}

void MatchLinesPlot::dragBox(const QRect& box)
{
    emit AboutToReject(box.isEmpty() ? 0 : int(findResults(box).size()));
}

void MatchLinesPlot::rejectLines(const std::vector<int>& places)
{
    emit PlacesRejected(places);
    emit ItemsRemoved();
}
