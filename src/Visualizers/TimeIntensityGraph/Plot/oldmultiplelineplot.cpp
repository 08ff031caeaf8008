#include "oldmultiplelineplot.h"

#include "amplitudeline.h"
#include "dataset.h"
#include "verticalaxis.h"

void OldMultipleLinePlot::AddLine(DataSet* data, int attribute, int from, int to,
                                  const QColor& color)
{
    const Entry& line = appendLine(attribute, from, to - from, color);
    line.m_Line->SetDataSet(data);
    line.m_Line->SetRange(from, to);
    GetVerticalAxis()->SetTitle(data->GetAttributeName(attribute));
    setLimits(data->GetMinValue(attribute), data->GetMaxValue(attribute));
}

void OldMultipleLinePlot::AddLine(double* values, int size, const QColor& color)
{
    constexpr float bold = 2.0F;
    const Entry& line = appendLine(-1, 0, size, color);
    line.m_Line->SetData(values, size);
    // One among hundreds of lines of rows.
    line.m_Line->SetPenWidth(bold);
}

std::optional<RowSpan> OldMultipleLinePlot::GetRows(int index) const
{
    const Entry& line = entry(index);
    if (!line.m_Line->GetDataSet())
        return {};
    return RowSpan{line.m_From, line.m_From + line.m_Count};
}
