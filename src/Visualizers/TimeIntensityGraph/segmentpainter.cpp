#include "segmentpainter.h"

#include "collapsedwidth.h"
#include "cutcollection.h"
#include "pixelmath.h"
#include "timeaxis.h"
#include <QPainter>
#include <cmath>
#include <limits>

namespace
{
/// Rectangles of whole pixels from left to right, joined while they share colour and pixels.
class JoinedFills
{
public:
    JoinedFills(QPainter& painter, int height) : m_Painter(painter), m_Height(height) {}
    ~JoinedFills() { flush(); }
    JoinedFills(const JoinedFills&) = delete;
    JoinedFills& operator=(const JoinedFills&) = delete;

    void Add(double from, double to, const QColor& color)
    {
        const int left = TruncateToInt(std::floor(from));
        const int right = std::max(left + 1, TruncateToInt(std::floor(to)));
        if (m_Right > m_Left && left >= m_Left && right <= m_Right)
            return;
        if (m_Right > m_Left && color == m_Color && left >= m_Left && left <= m_Right) {
            m_Right = right;
            return;
        }
        flush();
        m_Left = left;
        m_Right = right;
        m_Color = color;
    }

private:
    void flush()
    {
        if (m_Right > m_Left)
            m_Painter.fillRect(m_Left, 0, m_Right - m_Left, m_Height, m_Color);
    }

    QPainter& m_Painter;
    const int m_Height;
    int m_Left = 0;
    int m_Right = 0;
    QColor m_Color;
};
} // namespace

SegmentPainter::SegmentPainter(const CutCollection& cuts, const TimeAxis& axis,
                               const QRect& visible, int height)
    : m_Cuts(cuts), m_Axis(axis), m_Height(height), m_FirstRow(std::numeric_limits<int>::min()),
      m_LastRow(std::numeric_limits<int>::max())
{
    if (!axis.IsUniform())
        return;
    m_FirstRow = axis.ToIndex(float(visible.left() - 2));
    m_LastRow = axis.ToIndex(float(visible.right() + 2));
}

double SegmentPainter::toPixel(int row) const
{
    const double offset =
        m_Axis.IsUniform() ? m_Axis.ToExactPixel(row) : double(m_Axis.ToPixel(row));
    return offset + m_Axis.GetStart().x();
}

int SegmentPainter::nextVisible(int start) const
{
    return m_Cuts.FindNextTouching(m_FirstRow, m_LastRow, start);
}

void SegmentPainter::PaintFills(QPainter& painter) const
{
    JoinedFills fills(painter, m_Height);
    for (int i = nextVisible(0); i != -1; i = nextVisible(i + 1)) {
        const CutSegment& segment = *m_Cuts.GetSegment(i);
        if (segment.GetState() == CutSegment::SEGMENT_LABELED)
            fills.Add(toPixel(segment.GetFrom()), toPixel(segment.GetTo()), segment.GetColor());
        else if (segment.GetState() == CutSegment::SEGMENT_RESULT)
            fills.Add(toPixel(segment.GetFrom()), toPixel(segment.GetTo()), Qt::gray);
    }
}

void SegmentPainter::PaintOutlines(QPainter& painter, bool collapsed) const
{
    JoinedFills narrow(painter, m_Height);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::NoBrush);
    const auto outline = [&](int from, int to) {
        const double left = toPixel(from);
        const double right = toPixel(to);
        if (right - left < 1)
            narrow.Add(left, right, Qt::black);
        else
            painter.drawRect(QRect(QPoint(TruncateToInt(left), 0),
                                   QPoint(TruncateToInt(right) - 1, m_Height - 2)));
    };
    if (collapsed) {
        forEachCollapsed(outline);
        return;
    }
    for (int i = nextVisible(0); i != -1; i = nextVisible(i + 1))
        outline(m_Cuts.GetSegment(i)->GetFrom(), m_Cuts.GetSegment(i)->GetTo());
}

template <class Outline>
void SegmentPainter::forEachCollapsed(const Outline& outline) const
{
    int shift = 0;
    for (int i = 0; i < m_Cuts.GetSegmentCount(); ++i) {
        const CutSegment& segment = *m_Cuts.GetSegment(i);
        const int from = shift + segment.GetFrom();
        const int to = shift + segment.GetTo();
        if (segment.GetState() == CutSegment::SEGMENT_LABELED)
            shift += CollapsedWidth(segment) - segment.GetLength();
        else if (to >= m_FirstRow && from <= m_LastRow)
            outline(from, to);
    }
}
