#include "segmentpainter.h"

#include "cutcollection.h"
#include "cuttableamplitudeline.h"
#include "pixelmath.h"
#include "timeaxis.h"
#include <QPainter>
#include <cmath>

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
    : m_Cuts(cuts), m_Axis(axis), m_Height(height),
      m_Rows(axis.RowsUnder(visible.left() - 2, visible.right() + 2, axis.GetRows()))
{
}

int SegmentPainter::nextVisible(int start) const
{
    return m_Cuts.FindNextTouching(m_Rows.m_From, m_Rows.m_To, start);
}

void SegmentPainter::PaintFills(QPainter& painter) const
{
    JoinedFills fills(painter, m_Height);
    for (int i = nextVisible(0); i != -1; i = nextVisible(i + 1)) {
        const CutSegment& segment = *m_Cuts.GetSegment(i);
        if (segment.GetState() == CutSegment::SEGMENT_LABELED)
            fills.Add(m_Axis.ToX(segment.GetFrom()), m_Axis.ToX(segment.GetTo()),
                      segment.GetColor());
        else if (segment.GetState() == CutSegment::SEGMENT_RESULT)
            fills.Add(m_Axis.ToX(segment.GetFrom()), m_Axis.ToX(segment.GetTo()), Qt::gray);
    }
}

void SegmentPainter::PaintOutlines(QPainter& painter, bool collapsed) const
{
    JoinedFills narrow(painter, m_Height);
    painter.setPen(Qt::black);
    painter.setBrush(Qt::NoBrush);
    const auto outline = [&](int from, int to) {
        const double left = m_Axis.ToX(from);
        const double right = m_Axis.ToX(to);
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
        else if (to >= m_Rows.m_From && from <= m_Rows.m_To)
            outline(from, to);
    }
}
