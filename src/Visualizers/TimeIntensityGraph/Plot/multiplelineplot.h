#pragma once

#include "overlaidlines.h"

class CutSegment;

/// The lines of segments, found again by their segment.
class MultipleLinePlot : public OverlaidLines
{
public:
    /// The rows from up to, but without, to; the value axis takes the limits of the attribute.
    void AddLine(DataSet* data, CutSegment* segment, int attribute, int from, int to,
                 const QColor& color);
    /// The whole data set, with the raw limits of the attribute.
    void AddLine(DataSet* data, CutSegment* segment, int attribute, const QColor& color);
    /// False when there is no line of that segment.
    bool RemoveCutSegment(const CutSegment* segment);
    CutSegment* GetCutSegment(int index) const { return m_Segments[size_t(index)]; }
    void RemoveLine(int index) override;

private:
    // In the order of the lines.
    std::vector<CutSegment*> m_Segments;
};
