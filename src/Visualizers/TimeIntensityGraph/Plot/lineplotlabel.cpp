#include "lineplotlabel.h"

#include "timeaxis.h"
#include <QPainter>
#include <algorithm>

void LinePlotLabel::Paint(QPainter& painter, int from, int to, bool grid)
{
    LinePlot::Paint(painter, from, to, grid);
    PaintRange(painter, from, to);
}

void LinePlotLabel::Paint(QPainter& painter, bool grid)
{
    LinePlot::Paint(painter, grid);
    PaintRange(painter, m_From, m_To);
}

void LinePlotLabel::PaintRange(QPainter& painter, int from, int to)
{
    if (!m_LabelCollection || (!m_Data && !m_DataSet))
        return;
    constexpr double labelOpacity = 0.2;
    const double start = m_TimeAxis->GetStart().x();
    const double end = m_TimeAxis->GetEnd().x();
    painter.save();
    painter.setOpacity(labelOpacity);
    for (const StudyLabelInstance* label : *m_LabelCollection) {
        for (const RowSpan& span : label->GetSpans()) {
            if (span.m_To < from || span.m_From > to)
                continue;
            const double left = start + double(m_TimeAxis->ToPixel(span.m_From - from));
            const double right = start + double(m_TimeAxis->ToPixel(span.m_To - from));
            const QPointF corner(std::max(start, left), 0);
            const QPointF opposite(std::min(end, right) - 1, double(m_Height) - 1);
            painter.fillRect(QRectF(corner, opposite), label->GetColor());
        }
    }
    painter.restore();
}
