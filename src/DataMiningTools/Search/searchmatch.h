#pragma once

#include <QVector>

/// A stretch of rows that a search has found.
struct SearchMatch {
    int m_From = 0;
    int m_To = 0;
    /// How many times the search came upon it, at least once.
    quint64 m_Count = 1;

    bool operator==(const SearchMatch& other) const
    {
        return m_From == other.m_From && m_To == other.m_To && m_Count == other.m_Count;
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
