#include "amplitudeline.h"

#include "dataset.h"
#include "linereduction.h"
#include "pixelmath.h"
#include "timeaxis.h"
#include "verticalaxis.h"
#include <QLoggingCategory>
#include <QPainter>
#include <QPolygonF>
#include <QVector>
#include <algorithm>
#include <cmath>

Q_LOGGING_CATEGORY(lcLines, "skerrymoor.plot.lines", QtWarningMsg)

namespace
{
void paintPiece(QPainter& painter, QPolygonF& piece)
{
    if (piece.size() == 1)
        painter.drawPoint(piece.first());
    else if (!piece.isEmpty())
        painter.drawPolyline(piece);
    piece.clear();
}
} // namespace

AmplitudeLine::~AmplitudeLine() = default;

void AmplitudeLine::SetData(double* values, int size)
{
    m_Array = values;
    m_ArraySize = size;
}

void AmplitudeLine::SetRange(int from, int to)
{
    m_From = from;
    m_To = to;
}

RowSpan AmplitudeLine::GetRange() const
{
    const int count = m_DataSet ? m_DataSet->GetRowCount() : m_ArraySize;
    if (m_From == -1 || m_To == -1)
        return {0, count};
    return {std::max(m_From, 0), std::min(m_To, count)};
}

void AmplitudeLine::Paint(QPainter& painter)
{
    if (!m_TimeAxis || !m_VerticalAxis) {
        qCDebug(lcLines, "DataSet || TimeAxis || VerticalAxis are equal to NULL");
        return;
    }
    if (m_DataSet)
        PaintDataSet(painter);
    if (m_Array)
        PaintArray(painter);
}

void AmplitudeLine::PaintDataSet(QPainter& painter)
{
    if (m_Color.isValid())
        m_Color.setAlphaF(m_Alpha);
    const RowSpan rows = GetRange();
    painter.setPen(FastPen(painter, m_Color, double(m_PenWidth)));
    paintRows(painter, rows, rows.m_From);
}

void AmplitudeLine::PaintArray(QPainter& painter)
{
    if (m_Color.isValid())
        m_Color.setAlphaF(m_Alpha);
    painter.setPen(FastPen(painter, m_Color, double(m_PenWidth)));
    const RowSpan seen = visibleRows(painter, 0, {0, m_ArraySize});
    QVector<QLineF> lines;
    lines.reserve(std::max(seen.GetLength(), 0));
    for (int i = seen.m_From + 1; i < seen.m_To; ++i) {
        if (std::isfinite(m_Array[i - 1]) && std::isfinite(m_Array[i]))
            lines.append(QLineF(toPoint(i - 1, m_Array[i - 1]), toPoint(i, m_Array[i])));
    }
    painter.drawLines(lines);
}

void AmplitudeLine::paintRows(QPainter& painter, const RowSpan& rows, int origin) const
{
    if (m_AttributeId < 0 || m_AttributeId >= m_DataSet->GetAttributeCount())
        return;
    const double columnWidth = LineReduction::GetColumnWidth(HorizontalScale(painter));
    const LineReduction reduction(*m_DataSet, m_AttributeId,
                                  PixelColumns(*m_TimeAxis, origin, columnWidth));
    const auto points = reduction.Reduce(visibleRows(painter, origin, rows));
    QPolygonF piece;
    piece.reserve(int(points.size()));
    for (const LinePoint& point : points) {
        if (point.IsBreak())
            paintPiece(painter, piece);
        else
            piece.append(toPoint(point.m_Row - origin, point.m_Value));
    }
    paintPiece(painter, piece);
}

QPointF AmplitudeLine::toPoint(int index, double value) const
{
    const double y =
        m_VerticalAxis->GetBottom().y() - double(m_VerticalAxis->ToPixel(float(value)));
    return {m_TimeAxis->ToX(index), SafeCoordinate(y)};
}

RowSpan AmplitudeLine::visibleRows(const QPainter& painter, int origin, const RowSpan& rows) const
{
    // Some pixels more on both sides, for the width of the pen and for columns that would otherwise
    // be cut in the picture.
    const double margin = 2 + double(m_PenWidth);
    const QRectF visible = VisibleRect(painter);
    const RowSpan seen = m_TimeAxis->RowsUnder(visible.left() - margin, visible.right() + margin,
                                               {rows.m_From - origin, rows.m_To - origin});
    return {seen.m_From + origin, seen.m_To + origin};
}
