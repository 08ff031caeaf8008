#pragma once

#include "rowspan.h"
#include <iterator>
#include <map>

/// How many values each row of a table holds. Rows mostly hold equally many, so runs of such rows
/// are what is stored: one run for any number of rows that are alike.
class ValueCounts
{
public:
    int GetRowCount() const { return m_RowCount; }
    int GetCount(int row) const { return std::prev(m_Runs.upper_bound(row))->second; }
    /// True also without rows.
    bool AreEqual() const { return m_Runs.size() <= 1; }

    /// Appends rows of count values each.
    void AddRows(int rows, int count);
    /// Gives each of the rows change(count) values instead of its count.
    template <class ChangeCount>
    void Change(const RowSpan& rows, const ChangeCount& change)
    {
        if (rows.IsEmpty())
            return;
        startRun(rows.m_From);
        startRun(rows.m_To);
        for (auto run = m_Runs.find(rows.m_From); run != m_Runs.end() && run->first < rows.m_To;
             ++run)
            run->second = change(run->second);
        joinRuns(rows);
    }
    /// Calls visit(RowSpan, count) for each run of rows with equal counts, in row order.
    template <class Visit>
    void ForEachRun(const Visit& visit) const
    {
        for (auto run = m_Runs.begin(); run != m_Runs.end(); ++run) {
            const auto next = std::next(run);
            const int end = next == m_Runs.end() ? m_RowCount : next->first;
            visit(RowSpan{run->first, end}, run->second);
        }
    }

private:
    void startRun(int row);
    void joinRuns(const RowSpan& rows);

    int m_RowCount = 0;
    // By the first row of each run; neighbours differ.
    std::map<int, int> m_Runs;
};
