#pragma once

#include <vector>

/// The steps on which the user has rejected matches, one act after the other.
class MatchRejections
{
public:
    /// steps: ascending. Those that are rejected already do not count again; without others there
    /// is no act.
    void Reject(const std::vector<int>& steps);
    /// Undoes the last act.
    void BringBack();
    void Clear() { m_Acts.clear(); }

    bool IsEmpty() const { return m_Acts.empty(); }
    /// Of all acts, ascending, each once.
    std::vector<int> GetSteps() const;

private:
    // No step is in two of them.
    std::vector<std::vector<int>> m_Acts;
};
