#include "cuttableamplitudeline.h"

#include "cutcollection.h"
#include "dataset.h"
#include "heatcolor.h"
#include "pixelmath.h"
#include "timeaxis.h"
#include "verticalaxis.h"
#include <QPainter>
#include <algorithm>

void CuttableAmplitudeLine::PaintDataSet(QPainter& painter)
{
    const int rows = m_DataSet->GetRowCount();
    m_TimeAxis->SetNumberOfPoints(rows);
    const RowSpan range = GetRange();
    painter.setPen(FastPen(painter, Qt::black, 0.5));
    paintRows(painter, {range.m_From, std::min(range.m_To + 1, rows - 1)}, 0);
}

void CuttableAmplitudeLine::PaintCollapsed(QPainter& painter)
{
    if (!m_DataSet || !m_CutCollection || !m_TimeAxis || !m_VerticalAxis)
        return;
    const auto isBlock = [](const CutSegment& segment) {
        return segment.GetState() == CutSegment::SEGMENT_LABELED;
    };
    int points = 0;
    for (int i = 0; i < m_CutCollection->GetSegmentCount(); ++i) {
        const CutSegment& segment = *m_CutCollection->GetSegment(i);
        points += isBlock(segment) ? CollapsedWidth(segment) : segment.GetLength();
    }
    m_TimeAxis->SetNumberOfPoints(points);

    const double bottom = m_VerticalAxis->GetBottom().y();
    const double top = m_VerticalAxis->GetTop().y();
    const HeatRows rows{*m_DataSet, m_AttributeId, *m_TimeAxis, *m_VerticalAxis, bottom, -1};
    int point = 0;
    for (int i = 0; i < m_CutCollection->GetSegmentCount(); ++i) {
        const CutSegment& segment = *m_CutCollection->GetSegment(i);
        if (!isBlock(segment)) {
            rows.Paint(painter, segment, point - segment.GetFrom());
            point += segment.GetLength();
            continue;
        }
        const double left = m_TimeAxis->GetStart().x() + double(m_TimeAxis->ToPixel(point));
        point += CollapsedWidth(segment);
        const double right = m_TimeAxis->GetStart().x() + double(m_TimeAxis->ToPixel(point));
        painter.fillRect(QRectF(left, top, right - left, bottom - top), segment.GetColor());
    }
}
