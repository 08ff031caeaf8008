#include "columnbuilder.h"

#include <algorithm>

void ColumnBuilder::AddRow(const std::vector<double>& values)
{
    if (m_RowCount == 0)
        makeRoom(values.size());
    ++m_RowCount;
    for (size_t i = 0; i < values.size(); ++i)
        m_Columns[i].Append(values[i]);
}

std::vector<DataColumn> ColumnBuilder::Take()
{
    for (DataColumn& column : m_Columns)
        column.ShrinkToFit();
    m_RowCount = 0;
    return std::move(m_Columns);
}

void ColumnBuilder::makeRoom(size_t columns)
{
    m_Columns.resize(columns);
    const qint64 rows = std::min(m_ExpectedRows, m_ExpectedValues / qint64(columns));
    for (DataColumn& column : m_Columns)
        column.Reserve(int(std::min<qint64>(rows, MostRows)));
}
