#include "valuecounts.h"

void ValueCounts::AddRows(int rows, int count)
{
    if (rows > 0 && (m_RowCount == 0 || m_Runs.rbegin()->second != count))
        m_Runs.emplace_hint(m_Runs.end(), m_RowCount, count);
    m_RowCount += rows;
}

// Cuts the run that holds the row in front of it.
void ValueCounts::startRun(int row)
{
    if (row >= m_RowCount)
        return;
    const auto next = m_Runs.upper_bound(row);
    const auto run = std::prev(next);
    if (run->first != row)
        m_Runs.emplace_hint(next, row, run->second);
}

// Joins neighbours with equal counts from the run in front of the rows to the one behind them.
void ValueCounts::joinRuns(const RowSpan& rows)
{
    auto run = m_Runs.find(rows.m_From);
    if (run != m_Runs.begin())
        --run;
    for (auto next = std::next(run); next != m_Runs.end() && next->first <= rows.m_To;
         next = std::next(run)) {
        if (next->second == run->second)
            m_Runs.erase(next);
        else
            run = next;
    }
}
