#include "columnbuilder.h"

#include <algorithm>

bool ColumnBuilder::AddRow(const std::vector<double>& values)
{
    if (m_RowCount == 0)
        makeRoom(values.size());
    if (m_RowCount == MostRows)
        return false;
    for (size_t i = 0; i < values.size(); ++i) {
        if (!m_Columns[i].Append(values[i]))
            return false;
    }
    ++m_RowCount;
    return true;
}

std::vector<DataColumn> ColumnBuilder::Take()
{
    for (DataColumn& column : m_Columns) {
        column.Resize(m_RowCount);
        column.ShrinkToFit();
    }
    m_RowCount = 0;
    return std::move(m_Columns);
}

void ColumnBuilder::makeRoom(size_t columns)
{
    m_Columns.resize(columns);
    const qint64 rows = std::min(m_ExpectedRows, m_ExpectedValues / qint64(columns));
    // Where there is no memory for a guess there may be enough for the rows.
    for (DataColumn& column : m_Columns)
        column.Reserve(int(std::min<qint64>(rows, MostRows)));
}
