#pragma once

#include <map>
#include <memory>

class DataSet;

/// The columns that a search walks more than once, each read when it is first asked for. Values
/// that are no finite numbers are bridged by the last one before, those in front by the first
/// behind: running sums would not get rid of them.
class SearchColumns
{
public:
    /// Rows start to end - 1, which exist.
    SearchColumns(const DataSet& data, int start, int end)
        : m_Data(data), m_Start(start), m_End(end)
    {
    }

    int GetLength() const { return m_End - m_Start; }
    /// attribute must exist.
    const double* Get(int attribute);

private:
    const DataSet& m_Data;
    int m_Start;
    int m_End;
    std::map<int, std::unique_ptr<double[]>> m_Columns;
};
