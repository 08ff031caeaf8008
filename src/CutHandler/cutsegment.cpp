#include "cutsegment.h"

#include "segmentlist.h"

void CutSegment::setEnds(int from, int to)
{
    const int oldFrom = std::exchange(m_From, from);
    const int oldTo = std::exchange(m_To, to);
    if (m_List && (oldFrom != from || oldTo != to))
        m_List->EndsChanged(this, oldFrom, oldTo);
}
