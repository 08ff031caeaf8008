#pragma once

#include "rowspan.h"
#include <QColor>
#include <QRect>

class CutCollection;
class QPainter;
class TimeAxis;

/// Paints the segments of a recording over its plots.
///
/// Segments out of sight cost next to nothing; those narrower than a pixel are painted together.
class SegmentPainter
{
public:
    /// visible: the pixels that are painted. height: of the widget.
    SegmentPainter(const CutCollection& cuts, const TimeAxis& axis, const QRect& visible,
                   int height);

    /// Labelled segments in their colour, search results in gray.
    void PaintFills(QPainter& painter) const;
    /// A black outline around each segment. With collapsed labelled segments, these have none and
    /// the others move up.
    void PaintOutlines(QPainter& painter, bool collapsed) const;

private:
    int nextVisible(int start) const;
    /// Gives an outline the rows at which each segment that is not labelled stands.
    template <class Outline>
    void forEachCollapsed(const Outline& outline) const;

    const CutCollection& m_Cuts;
    const TimeAxis& m_Axis;
    const int m_Height;
    // Those in sight and a few more.
    const RowSpan m_Rows;
};
