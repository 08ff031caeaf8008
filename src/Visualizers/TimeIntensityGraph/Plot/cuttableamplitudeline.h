#pragma once

#include "amplitudeline.h"
#include "cutsegment.h"
#include <algorithm>

class CutCollection;

/// The points of the time axis that a labelled segment takes when it is collapsed to a block.
inline int CollapsedWidth(const CutSegment& segment)
{
    return std::max(segment.GetLength() / 10, 20);
}

/// The line of the main graph: rows stand at their absolute place in the recording.
class CuttableAmplitudeLine : public AmplitudeLine
{
public:
    CuttableAmplitudeLine(int attribute, CutCollection* cuts)
        : AmplitudeLine(attribute), m_CutCollection(cuts)
    {
    }

    /// The last row of the recording is never drawn: it is only the end mark of the last segment.
    void PaintDataSet(QPainter& painter) override;
    /// Labelled segments as blocks in their colours, the others in heat colours.
    ///
    /// The display of collapsed segments, which no window shows yet, though the selection already
    /// reckons with it.
    void PaintCollapsed(QPainter& painter);

    void SetCutCollection(CutCollection* cuts) { m_CutCollection = cuts; }
    void SetShowLabeled(bool show) { m_ShowLabeled = show; }
    bool GetShowLabeled() const { return m_ShowLabeled; }

private:
    CutCollection* m_CutCollection;
    bool m_ShowLabeled = true;
};
