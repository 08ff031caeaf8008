#include "columnstore.h"

#include <algorithm>

void ColumnStore::SetValue(int row, int column, double value)
{
    if (column >= 0 && column < GetValueCount(row))
        GetColumn(column).SetValue(row, value);
}

void ColumnStore::AddValue(int row, double value)
{
    const int column = GetValueCount(row);
    Widen(column + 1);
    GetColumn(column).SetValue(row, value);
    m_Counts.Change({row, row + 1}, [](int count) { return count + 1; });
}

void ColumnStore::RemoveValue(int row, int column)
{
    const int last = GetValueCount(row) - 1;
    if (column < 0 || column > last)
        return;
    for (; column < last; ++column)
        GetColumn(column).SetValue(row, GetValue(row, column + 1));
    GetColumn(last).SetValue(row, Missing);
    m_Counts.Change({row, row + 1}, [=](int) { return last; });
}

void ColumnStore::SetValues(int row, ConstSpan<double> values)
{
    const int old = GetValueCount(row);
    Widen(values.size());
    for (int column = 0; column < values.size(); ++column)
        GetColumn(column).SetValue(row, values[column]);
    for (int column = values.size(); column < old; ++column)
        GetColumn(column).SetValue(row, Missing);
    m_Counts.Change({row, row + 1}, [=](int) { return values.size(); });
}

void ColumnStore::AddRow(ConstSpan<double> values)
{
    Widen(values.size());
    for (int column = 0; column < GetColumnCount(); ++column) {
        const double value = column < values.size() ? values[column] : Missing;
        const bool hasRoom = GetColumn(column).ChangeValues().Append(value);
        Q_CHECK_PTR(hasRoom);
    }
    m_Counts.AddRows(1, values.size());
}

void ColumnStore::TakeColumns(std::vector<DataColumn>&& columns)
{
    m_Columns.clear();
    m_Counts = ValueCounts();
    if (!columns.empty())
        m_Counts.AddRows(columns.front().size(), int(columns.size()));
    for (DataColumn& column : columns)
        m_Columns.emplace_back(std::move(column));
}

void ColumnStore::Widen(int columns)
{
    while (GetColumnCount() < columns)
        m_Columns.emplace_back(DataColumn(GetRowCount(), Missing));
}

void ColumnStore::AppendValues(DataColumn&& values)
{
    const int rows = values.size();
    if (rows > 0 && rows == GetRowCount() && IsEven()) {
        const int column = GetValueCount(0);
        if (HasColumn(column))
            GetColumn(column) = StoredColumn(std::move(values));
        else
            m_Columns.emplace_back(std::move(values));
    } else {
        m_Counts.ForEachRun([&](const RowSpan& run, int count) {
            copyRows(count, {run.m_From, std::min(run.m_To, rows)}, values);
        });
    }
    m_Counts.Change({0, rows}, [](int count) { return count + 1; });
}

void ColumnStore::ReplaceValues(int column, DataColumn&& values)
{
    if (!HasColumn(column))
        return;
    if (IsEven()) {
        if (GetRowCount() > 0 && column < GetValueCount(0))
            GetColumn(column) = StoredColumn(std::move(values));
        return;
    }
    m_Counts.ForEachRun([&](const RowSpan& run, int count) {
        if (column < count)
            copyRows(column, run, values);
    });
}

void ColumnStore::RemoveColumn(int column)
{
    if (!HasColumn(column))
        return;
    m_Columns.erase(m_Columns.begin() + column);
    m_Counts.Change({0, GetRowCount()},
                    [=](int count) { return column < count ? count - 1 : count; });
}

void ColumnStore::copyRows(int column, const RowSpan& rows, ConstSpan<double> values)
{
    if (rows.IsEmpty())
        return;
    Widen(column + 1);
    std::copy(values.begin() + rows.m_From, values.begin() + rows.m_To,
              GetColumn(column).ChangeValues().begin() + rows.m_From);
}
