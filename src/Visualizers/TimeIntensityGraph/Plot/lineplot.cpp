#include "lineplot.h"

#include "amplitudeline.h"
#include "dataset.h"
#include "pixelmath.h"
#include "plotlook.h"
#include "slittedaxis.h"
#include "verticalaxis.h"
#include <QPainter>
#include <algorithm>
#include <cmath>

LinePlot::LinePlot(int attribute)
    : m_AttributeId(attribute), m_VerticalAxis(std::make_unique<VerticalAxis>()),
      m_TimeAxis(std::make_unique<TimeAxis>())
{
    m_VerticalAxis->SetAttribute(attribute);
    setAmplitudeLine(std::make_unique<AmplitudeLine>(attribute));
}

LinePlot::~LinePlot() = default;

void LinePlot::setAmplitudeLine(std::unique_ptr<AmplitudeLine> line)
{
    m_AmplitudeLine = std::move(line);
    m_AmplitudeLine->SetVerticalAxis(m_VerticalAxis.get());
    m_AmplitudeLine->SetTimeAxis(m_TimeAxis.get());
}

bool LinePlot::hasAttribute() const
{
    return m_DataSet && m_AttributeId >= 0 && m_AttributeId < m_DataSet->GetAttributeCount() &&
           !m_HasLostAttribute;
}

void LinePlot::SetDataSet(DataSet* data)
{
    m_DataSet = data;
    m_HasLostAttribute = false;
    m_AmplitudeLine->SetDataSet(data);
    SetRange(0, data ? data->GetRowCount() : 0);
    ResetAxis();
}

void LinePlot::SetData(double* values, int size, const QString& name)
{
    m_Data = values;
    m_DataSize = size;
    m_AmplitudeLine->SetData(values, size);
    m_TimeAxis->SetNumberOfPoints(size);
    m_VerticalAxis->SetTitle(name);
    ResetAxis();
}

void LinePlot::SetAttribute(int attribute)
{
    m_AttributeId = attribute;
    m_HasLostAttribute = false;
    m_VerticalAxis->SetAttribute(attribute);
    m_AmplitudeLine->SetAttribute(attribute);
    ResetAxis();
}

bool LinePlot::FollowAttribute()
{
    if (!m_DataSet || m_AttributeId < 0 || m_Look.m_Name.isNull())
        return false;
    const bool wasLost = m_HasLostAttribute;
    const int attribute = m_DataSet->FindAttribute(m_Look.m_Name, m_AttributeId);
    if (attribute == -1) {
        m_HasLostAttribute = true;
        return !wasLost;
    }
    const AttributeLook before = m_Look;
    SetAttribute(attribute);
    return wasLost || m_Look != before;
}

void LinePlot::ResetAxis()
{
    if (hasAttribute()) {
        m_VerticalAxis->SetTitle(m_DataSet->GetAttributeName(m_AttributeId));
        m_VerticalAxis->SetMaximum(m_DataSet->GetMaxValue(m_AttributeId));
        m_VerticalAxis->SetMinimum(m_DataSet->GetMinValue(m_AttributeId));
        m_Look = AttributeLook(*m_DataSet, m_AttributeId);
    } else if (m_Data) {
        setArrayLimits();
    }
}

void LinePlot::setArrayLimits()
{
    double low = 0;
    double high = 0;
    bool found = false;
    for (int i = 0; i < m_DataSize; ++i) {
        if (!std::isfinite(m_Data[i]))
            continue;
        low = found ? std::min(low, m_Data[i]) : m_Data[i];
        high = found ? std::max(high, m_Data[i]) : m_Data[i];
        found = true;
    }
    m_VerticalAxis->SetMaximum(std::ceil(high + std::abs(high * 0.1)));
    m_VerticalAxis->SetMinimum(std::floor(low - std::abs(low * 0.1)));
}

void LinePlot::SetRange(int from, int to)
{
    m_From = from;
    m_To = to;
    m_AmplitudeLine->SetRange(from, to);
    m_TimeAxis->SetNumberOfPoints(to - from);
}

void LinePlot::SetSize(float height, float width)
{
    m_Height = height;
    m_Width = width;
    UpdateLayout();
}

void LinePlot::SetHeight(float height)
{
    m_Height = height;
    UpdateLayout();
}

void LinePlot::SetWidth(float width)
{
    m_Width = width;
    UpdateLayout();
}

void LinePlot::SetLeftMargin(int margin)
{
    m_LeftMargin = margin;
    UpdateLayout();
}

void LinePlot::SetTopMargin(int margin)
{
    m_TopMargin = margin;
    UpdateLayout();
}

void LinePlot::SetRightMargin(int margin)
{
    m_RightMargin = margin;
    UpdateLayout();
}

void LinePlot::SetTimeAxis(TimeAxis* axis)
{
    if (!axis || axis == m_TimeAxis.get())
        return;
    m_AmplitudeLine->SetTimeAxis(axis);
    m_TimeAxis.reset(axis);
    UpdateLayout();
}

void LinePlot::SetSlitted(int slitted)
{
    const int count = m_TimeAxis->GetLastIndex() + 1;
    m_Slitted = slitted;
    SetTimeAxis(slitted ? new SlittedAxis : new TimeAxis);
    m_TimeAxis->SetNumberOfPoints(count);
}

void LinePlot::ChangeAxisType(int axisType)
{
    const int count = m_TimeAxis->GetLastIndex();
    SetSlitted(axisType);
    m_TimeAxis->SetNumberOfPoints(count);
}

void LinePlot::UpdateLayout()
{
    const double bottom = double(m_Height) - m_TopMargin;
    m_VerticalAxis->SetTop(QPointF(m_LeftMargin, m_TopMargin));
    m_VerticalAxis->SetBottom(QPointF(m_LeftMargin, bottom));
    m_TimeAxis->SetStart(QPointF(m_LeftMargin, bottom));
    m_TimeAxis->SetEnd(QPointF(m_LeftMargin + double(m_Width) - (m_RightMargin + 5), bottom));
}

void LinePlot::Paint(QPainter& painter, int from, int to, bool grid)
{
    m_AmplitudeLine->SetRange(from, to);
    paintAll(painter, grid);
    m_AmplitudeLine->SetRange(m_From, m_To);
}

void LinePlot::Paint(QPainter& painter, bool grid)
{
    paintAll(painter, grid);
}

void LinePlot::paintAll(QPainter& painter, bool grid)
{
    if (!m_Data && !m_DataSet)
        return;
    if (grid) {
        constexpr double gridOpacity = 0.2;
        PaintGrid(painter, TruncateToInt(m_TimeAxis->GetStart().x()),
                  TruncateToInt(m_VerticalAxis->GetTop().y()), m_TimeAxis->GetEnd().x(),
                  m_VerticalAxis->GetBottom().y(), gridOpacity);
    }
    m_TimeAxis->Paint(painter);
    if (m_ShowVerticalAxis)
        m_VerticalAxis->Paint(painter);
    m_AmplitudeLine->Paint(painter);
}
