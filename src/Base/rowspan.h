#pragma once

#include <QDebug>

/// A span of rows from a first row up to, but without, an end row. Functions that may have none
/// return it as std::optional; a span without rows is one whose end is not above its start.
struct RowSpan {
    int m_From = 0;
    int m_To = 0;

    /// Below 0 for a span whose end lies before its start.
    int GetLength() const { return m_To - m_From; }
    bool IsEmpty() const { return m_To <= m_From; }
    bool Contains(int row) const { return m_From <= row && row < m_To; }

    bool operator==(const RowSpan& other) const
    {
        return m_From == other.m_From && m_To == other.m_To;
    }
    bool operator!=(const RowSpan& other) const { return !(*this == other); }
};

/// Shows the span in messages of tests and traces.
inline QDebug operator<<(QDebug debug, const RowSpan& span)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace() << "[" << span.m_From << ", " << span.m_To << ")";
}
