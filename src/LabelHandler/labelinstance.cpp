#include "labelinstance.h"

#include "behaviorlabel.h"

void LabelInstance::SetSegment(CutSegment* segment)
{
    CutSegment* old = std::exchange(m_Segment, segment);
    if (m_Label && old != segment)
        m_Label->SegmentChanged(this, old);
}
