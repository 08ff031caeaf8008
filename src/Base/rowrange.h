#pragma once

/// A span of rows, both ends included; -1 when unset.
struct RowRange {
    int m_From = -1;
    int m_To = -1;

    bool IsSet() const { return m_From != -1 && m_To != -1; }
    bool operator==(const RowRange& other) const
    {
        return m_From == other.m_From && m_To == other.m_To;
    }
};
