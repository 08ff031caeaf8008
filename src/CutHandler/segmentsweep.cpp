#include "segmentsweep.h"

#include "cutsegment.h"
#include "segmentlist.h"
#include <algorithm>
#include <numeric>

SegmentSweep::SegmentSweep(const SegmentList& segments)
    : m_Segments(segments), m_ByStart(size_t(segments.GetCount()))
{
    std::iota(m_ByStart.begin(), m_ByStart.end(), 0);
    std::stable_sort(m_ByStart.begin(), m_ByStart.end(), [&](int a, int b) {
        return segments.Get(a)->GetFrom() < segments.Get(b)->GetFrom();
    });
}

int SegmentSweep::Find(int from, int to)
{
    while (m_Begun < m_ByStart.size() && m_Segments.Get(m_ByStart[m_Begun])->GetFrom() <= from)
        m_Open.push(m_ByStart[m_Begun++]);
    while (!m_Open.empty() && m_Segments.Get(m_Open.top())->GetTo() < to)
        m_Open.pop();
    return m_Open.empty() ? -1 : m_Open.top();
}
