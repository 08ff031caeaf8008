#include "collectionamplitudeline.h"

#include "cutcollection.h"
#include "dataset.h"
#include "heatcolor.h"
#include "timeaxis.h"
#include "verticalaxis.h"
#include <QLoggingCategory>
#include <QPainter>

Q_LOGGING_CATEGORY(lcCollectionLine, "skerrymoor.plot.collection", QtWarningMsg)

namespace
{
constexpr int gapPoints = 20;
}

CollectionAmplitudeLine::CollectionAmplitudeLine(int attribute, CutSegment::SEGMENT_STATE state)
    : m_AttributeId(attribute), m_State(state)
{
}

CollectionAmplitudeLine::~CollectionAmplitudeLine() = default;

void CollectionAmplitudeLine::SetDataSet(DataSet* data)
{
    m_DataSet = data;
    rebuildAxes();
}

void CollectionAmplitudeLine::SetCutCollection(CutCollection* cuts)
{
    m_CutCollection = cuts;
    rebuildAxes();
}

void CollectionAmplitudeLine::SetWidth(int width)
{
    m_Width = width;
    rebuildAxes();
}

void CollectionAmplitudeLine::SetHeight(int height)
{
    m_Height = height;
    rebuildAxes();
}

void CollectionAmplitudeLine::rebuildAxes()
{
    m_VerticalAxis.reset();
    m_TimeAxis.reset();
    if (!m_DataSet || !m_CutCollection)
        return;
    // The y of a value is measured from the axis bottom downwards, so that high values stand low.
    m_VerticalAxis = std::make_unique<VerticalAxis>();
    m_VerticalAxis->SetBottom({0, 0});
    m_VerticalAxis->SetTop({0, double(-m_Height)});
    m_VerticalAxis->SetMaximum(m_DataSet->GetMaxValue(m_AttributeId));
    m_VerticalAxis->SetMinimum(m_DataSet->GetMinValue(m_AttributeId));

    int points = 0;
    for (int i = 0; i < m_CutCollection->GetSegmentCount(); ++i) {
        const CutSegment* segment = m_CutCollection->GetSegment(i);
        points += segment->GetState() == m_State ? segment->GetLength() : gapPoints;
    }
    m_TimeAxis = std::make_unique<TimeAxis>();
    m_TimeAxis->SetStart({0, 0});
    m_TimeAxis->SetEnd({double(m_Width), 0});
    m_TimeAxis->SetNumberOfPoints(points);
}

void CollectionAmplitudeLine::Paint(QPainter& painter) const
{
    if (!m_DataSet || !m_CutCollection || !m_VerticalAxis || !m_TimeAxis) {
        qCDebug(lcCollectionLine) << "null:" << !m_DataSet << !m_CutCollection << !m_VerticalAxis
                                  << !m_TimeAxis;
        return;
    }
    const HeatRows rows{
        *m_DataSet, m_AttributeId, *m_TimeAxis, *m_VerticalAxis, -m_VerticalAxis->GetBottom().y(),
        1};
    int shift = 0;
    for (int i = 0; i < m_CutCollection->GetSegmentCount(); ++i) {
        const CutSegment& segment = *m_CutCollection->GetSegment(i);
        if (segment.GetState() == m_State)
            rows.Paint(painter, segment, shift);
        else
            shift += gapPoints - segment.GetLength();
    }
}
