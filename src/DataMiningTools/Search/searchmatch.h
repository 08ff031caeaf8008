#pragma once

#include "rowspan.h"
#include <QVector>

/// Rows that a search has found: those of the segment that they become. Whoever resizes one may
/// leave its ends in the wrong order.
struct SearchMatch {
    RowSpan m_Rows;
    /// How many times the search came upon it, at least once.
    quint64 m_Count = 1;

    bool operator==(const SearchMatch& other) const
    {
        return m_Rows == other.m_Rows && m_Count == other.m_Count;
    }
    bool operator!=(const SearchMatch& other) const { return !(*this == other); }
};

using SearchMatches = QVector<SearchMatch>;

/// All matches, each as many times as it was found.
inline quint64 CountMatches(const SearchMatches& matches)
{
    quint64 count = 0;
    for (const SearchMatch& match : matches)
        count += match.m_Count;
    return count;
}
