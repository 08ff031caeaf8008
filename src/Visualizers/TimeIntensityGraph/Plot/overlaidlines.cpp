#include "overlaidlines.h"

#include "amplitudeline.h"
#include "dataset.h"
#include "pixelmath.h"
#include "plotlook.h"
#include "plotmargin.h"
#include "timeaxis.h"
#include "verticalaxis.h"
#include <QPainter>
#include <algorithm>

namespace
{
constexpr int topMargin = 9;
} // namespace

OverlaidLines::OverlaidLines() : m_VerticalAxis(std::make_unique<VerticalAxis>()) {}

OverlaidLines::~OverlaidLines() = default;

OverlaidLines::Entry& OverlaidLines::appendLine(int attribute, int from, int count,
                                                const QColor& color)
{
    Entry entry{std::make_unique<AmplitudeLine>(attribute), std::make_unique<TimeAxis>(), from,
                count};
    entry.m_TimeAxis->SetNumberOfPoints(count);
    entry.m_Line->SetColor(color);
    entry.m_Line->SetTimeAxis(entry.m_TimeAxis.get());
    entry.m_Line->SetVerticalAxis(m_VerticalAxis.get());
    layOut(*entry.m_TimeAxis);
    m_Entries.push_back(std::move(entry));
    return m_Entries.back();
}

void OverlaidLines::setLimits(double minimum, double maximum)
{
    m_VerticalAxis->SetMinimum(minimum);
    m_VerticalAxis->SetMaximum(maximum);
}

void OverlaidLines::layOut(TimeAxis& axis) const
{
    const double bottom = double(m_Height) - topMargin;
    axis.SetStart(QPointF(PlotLeftMargin, bottom));
    axis.SetEnd(QPointF(double(m_Width), bottom));
}

void OverlaidLines::SetSize(float height, float width)
{
    m_Height = height;
    m_Width = width;
    m_VerticalAxis->SetTop(QPointF(PlotLeftMargin, topMargin));
    m_VerticalAxis->SetBottom(QPointF(PlotLeftMargin, double(height) - topMargin));
    for (const Entry& entry : m_Entries)
        layOut(*entry.m_TimeAxis);
}

void OverlaidLines::SetAlpha(double alpha)
{
    for (const Entry& entry : m_Entries)
        entry.m_Line->SetAlpha(alpha);
}

void OverlaidLines::ChangeAttributeID(int attribute)
{
    m_VerticalAxis->SetAttribute(attribute);
    for (const Entry& entry : m_Entries) {
        const DataSet* data = entry.m_Line->GetDataSet();
        if (!data || attribute < 0 || attribute >= data->GetAttributeCount())
            continue;
        entry.m_Line->SetAttribute(attribute);
        m_VerticalAxis->SetTitle(data->GetAttributeName(attribute));
        setLimits(data->GetMinValue(attribute), data->GetMaxValue(attribute));
    }
}

void OverlaidLines::Paint(QPainter& painter) const
{
    constexpr double gridOpacity = 0.2;
    PaintGrid(painter, PlotLeftMargin, topMargin, double(m_Width), double(m_Height) - topMargin,
              gridOpacity);
    if (m_Entries.empty())
        return;
    m_Entries.front().m_TimeAxis->Paint(painter);
    m_VerticalAxis->Paint(painter);
    for (const Entry& entry : m_Entries)
        entry.m_Line->Paint(painter);
    // Arrays, such as the signal of a template, would drown in the lines of its matches.
    for (const Entry& entry : m_Entries) {
        if (!entry.m_Line->GetDataSet())
            entry.m_Line->Paint(painter);
    }
}

std::vector<int> OverlaidLines::FindLines(const QRectF& box) const
{
    const float low = m_VerticalAxis->ToValue(float(box.bottom()));
    const float high = m_VerticalAxis->ToValue(float(box.top()));
    std::vector<int> found;
    for (int i = 0; i < GetLineCount(); ++i) {
        if (hasValueInside(entry(i), box, low, high))
            found.push_back(i);
    }
    return found;
}

bool OverlaidLines::hasValueInside(const Entry& entry, const QRectF& box, float low, float high)
{
    const DataSet* data = entry.m_Line->GetDataSet();
    const double* array = entry.m_Line->GetData();
    if (!data && !array)
        return false;
    const int first = std::max(entry.m_TimeAxis->ToIndex(float(box.left())), 0);
    const int last = std::min(entry.m_TimeAxis->ToIndex(float(box.right())), entry.m_Count - 1);
    const int attribute = entry.m_Line->GetAttribute();
    for (int i = first; i <= last; ++i) {
        const int row = entry.m_From + i;
        if (data && (row < 0 || row >= data->GetRowCount()))
            continue;
        const double value = data ? data->GetValue(row, attribute) : array[i];
        if (double(low) <= value && value <= double(high))
            return true;
    }
    return false;
}

std::vector<int> OverlaidLines::FindSpans(const DataSet& data, int attribute,
                                          const std::vector<RowSpan>& spans,
                                          const QRectF& box) const
{
    const auto low = double(m_VerticalAxis->ToValue(float(box.bottom())));
    const auto high = double(m_VerticalAxis->ToValue(float(box.top())));
    const auto isInside = [=](double value) { return low <= value && value <= high; };
    const ConstSpan<double> values = data.GetColumn(attribute);
    TimeAxis axis;
    layOut(axis);
    std::vector<int> found;
    for (size_t i = 0; i < spans.size(); ++i) {
        const RowSpan& rows = spans[i];
        axis.SetNumberOfPoints(rows.GetLength());
        const int first = std::max(axis.ToIndex(float(box.left())), 0);
        const int end = std::min(axis.ToIndex(float(box.right())) + 1, rows.GetLength());
        if (first < end && std::any_of(values.begin() + rows.m_From + first,
                                       values.begin() + rows.m_From + end, isInside))
            found.push_back(int(i));
    }
    return found;
}

void OverlaidLines::RemoveLine(int index)
{
    m_Entries.erase(m_Entries.begin() + index);
}

void OverlaidLines::Clear()
{
    while (GetLineCount() > 0)
        RemoveLine(GetLineCount() - 1);
}
