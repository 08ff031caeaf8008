#include "labelchange.h"

namespace
{

template <class T>
void append(std::vector<T>& to, const std::vector<T>& from)
{
    to.insert(to.end(), from.begin(), from.end());
}

} // namespace

void LabelChange::Append(const LabelChange& next)
{
    append(m_Segments, next.m_Segments);
    append(m_Behaviors, next.m_Behaviors);
    append(m_RefusedSpans, next.m_RefusedSpans);
    m_Refused.append(next.m_Refused);
}
