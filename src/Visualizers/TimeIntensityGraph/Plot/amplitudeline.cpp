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

void AmplitudeLine::GetRange(int& from, int& to) const
{
    const int count = m_DataSet ? m_DataSet->GetRowCount() : m_ArraySize;
    const bool all = m_From == -1 || m_To == -1;
    from = all ? 0 : std::max(m_From, 0);
    to = all ? count : std::min(m_To, count);
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
    int from = 0;
    int to = 0;
    GetRange(from, to);
    painter.setPen(FastPen(painter, m_Color, double(m_PenWidth)));
    paintRows(painter, from, to, from);
}

void AmplitudeLine::PaintArray(QPainter& painter)
{
    if (m_Color.isValid())
        m_Color.setAlphaF(m_Alpha);
    painter.setPen(FastPen(painter, m_Color, double(m_PenWidth)));
    int from = 0;
    int to = m_ArraySize;
    cutToVisible(painter, 0, from, to);
    QVector<QLineF> lines;
    lines.reserve(std::max(to - from, 0));
    for (int i = from + 1; i < to; ++i) {
        if (std::isfinite(m_Array[i - 1]) && std::isfinite(m_Array[i]))
            lines.append(QLineF(toPoint(i - 1, m_Array[i - 1]), toPoint(i, m_Array[i])));
    }
    painter.drawLines(lines);
}

void AmplitudeLine::paintRows(QPainter& painter, int from, int to, int origin) const
{
    if (m_AttributeId < 0 || m_AttributeId >= m_DataSet->GetAttributeCount())
        return;
    cutToVisible(painter, origin, from, to);
    const LineReduction reduction(*m_DataSet, m_AttributeId, columnRows(painter));
    const std::vector<LinePoint> points = reduction.Reduce(from, to);
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
    const double offset = m_TimeAxis->IsUniform() ? m_TimeAxis->ToExactPixel(index)
                                                  : double(m_TimeAxis->ToPixel(index));
    const double y =
        m_VerticalAxis->GetBottom().y() - double(m_VerticalAxis->ToPixel(float(value)));
    return {offset + m_TimeAxis->GetStart().x(), SafeCoordinate(y)};
}

void AmplitudeLine::cutToVisible(const QPainter& painter, int origin, int& from, int& to) const
{
    const double rowWidth = m_TimeAxis->ToExactPixel(1);
    if (!m_TimeAxis->IsUniform() || rowWidth <= 0)
        return;
    // One row more on both sides, so that the line runs on beyond the edge, and some pixels for
    // the width of the pen and for columns that would otherwise be cut in the picture.
    const double margin = 2 + double(m_PenWidth);
    const QRectF visible = VisibleRect(painter);
    const double start = m_TimeAxis->GetStart().x();
    const double left = origin + (visible.left() - margin - start) / rowWidth - 1;
    const double right = origin + (visible.right() + margin - start) / rowWidth + 2;
    from = std::max(from, TruncateToInt(std::floor(left)));
    to = std::min(to, TruncateToInt(std::ceil(right)));
}

double AmplitudeLine::columnRows(const QPainter& painter) const
{
    constexpr double everyRow = 1;
    if (!m_TimeAxis->IsUniform())
        return everyRow;
    return LineReduction::ColumnRows(m_TimeAxis->ToExactPixel(1) * HorizontalScale(painter));
}
