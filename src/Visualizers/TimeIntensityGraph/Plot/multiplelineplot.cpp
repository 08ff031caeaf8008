#include "multiplelineplot.h"

#include "amplitudeline.h"
#include "dataset.h"
#include "verticalaxis.h"
#include <algorithm>

void MultipleLinePlot::AddLine(DataSet* data, CutSegment* segment, int attribute, int from, int to,
                               const QColor& color)
{
    const Entry& line = appendLine(attribute, from, to - from, color);
    line.m_Line->SetDataSet(data);
    line.m_Line->SetRange(from, to);
    m_Segments.push_back(segment);
    GetVerticalAxis()->SetTitle(data->GetAttributeName(attribute));
    setLimits(data->GetMinValue(attribute), data->GetMaxValue(attribute));
}

void MultipleLinePlot::AddLine(DataSet* data, CutSegment* segment, int attribute,
                               const QColor& color)
{
    AddLine(data, segment, attribute, 0, data->GetRowCount(), color);
    setLimits(double(data->GetRawMin(attribute)), double(data->GetRawMax(attribute)));
}

bool MultipleLinePlot::RemoveCutSegment(const CutSegment* segment)
{
    const auto found = std::find(m_Segments.begin(), m_Segments.end(), segment);
    if (found == m_Segments.end())
        return false;
    RemoveLine(int(found - m_Segments.begin()));
    return true;
}

void MultipleLinePlot::RemoveLine(int index)
{
    OverlaidLines::RemoveLine(index);
    m_Segments.erase(m_Segments.begin() + index);
}
