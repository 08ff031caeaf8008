#include "columnsummary.h"

#include <algorithm>
#include <cmath>

void ColumnExtremes::Add(int row, double value)
{
    if (!std::isfinite(value)) {
        m_HasGap = true;
        return;
    }
    m_Sum += value;
    ++m_Count;
    if (m_LowRow < 0 || value < m_Low) {
        m_Low = value;
        m_LowRow = row;
    }
    if (m_HighRow < 0 || value > m_High) {
        m_High = value;
        m_HighRow = row;
    }
}

void ColumnExtremes::Add(const ColumnExtremes& following)
{
    m_HasGap = m_HasGap || following.m_HasGap;
    if (following.m_Count == 0)
        return;
    m_Sum += following.m_Sum;
    m_Count += following.m_Count;
    if (m_LowRow < 0 || following.m_Low < m_Low) {
        m_Low = following.m_Low;
        m_LowRow = following.m_LowRow;
    }
    if (m_HighRow < 0 || following.m_High > m_High) {
        m_High = following.m_High;
        m_HighRow = following.m_HighRow;
    }
}

ColumnSummary::ColumnSummary(ConstSpan<double> values)
{
    m_Levels.push_back(readRows(values));
    while (m_Levels.back().size() > BlockRows)
        m_Levels.push_back(joinBlocks(m_Levels.back()));
}

ColumnSummary::Level ColumnSummary::readRows(ConstSpan<double> values)
{
    const int rows = values.size();
    Level blocks;
    blocks.reserve(size_t(rows / BlockRows) + 1);
    for (int from = 0; from < rows; from += BlockRows) {
        ColumnExtremes block;
        const int to = from + std::min(BlockRows, rows - from);
        for (int row = from; row < to; ++row)
            block.Add(row, values[row]);
        blocks.push_back(block);
    }
    return blocks;
}

ColumnSummary::Level ColumnSummary::joinBlocks(const Level& fine)
{
    Level coarse((fine.size() + BlockRows - 1) / BlockRows);
    for (size_t i = 0; i < fine.size(); ++i)
        coarse[i / BlockRows].Add(fine[i]);
    return coarse;
}

ColumnExtremes ColumnSummary::GetExtremes(int from, int to) const
{
    ColumnExtremes extremes;
    size_t block = size_t(from) / BlockRows;
    const size_t end = (size_t(to) + BlockRows - 1) / BlockRows;
    while (block < end) {
        // The coarsest block that starts here and does not reach beyond the end.
        size_t level = 0;
        size_t span = 1;
        while (level + 1 < m_Levels.size() && block % (span * BlockRows) == 0 &&
               block + span * BlockRows <= end) {
            ++level;
            span *= BlockRows;
        }
        extremes.Add(m_Levels[level][block / span]);
        block += span;
    }
    return extremes;
}
