#include "dtw.h"

#include "dataset.h"
#include "signaltemplatedataobject.h"
#include "templatematcher.h"
#include <algorithm>

void DTW::ComputeDTW(int attribute, float* results, int start, int end) const
{
    const int rows = m_DataSet->GetRowCount();
    const int length = m_Signal->GetLength();
    if (start >= end)
        return;
    std::fill_n(results, end - start, 0.0F);
    if (start < 0 || end > rows || length < 1 || attribute < 0 ||
        attribute >= m_DataSet->GetAttributeCount())
        return;
    const std::vector<double> byRows = distances(attribute);
    for (int i = start; i < end; ++i)
        results[i - start] = float(byRows[size_t(std::min(length, rows - i)) - 1]);
    const auto [low, high] = std::minmax_element(results, results + (end - start));
    TemplateMatcher::normalizeArray(results, end - start, *low, *high);
}

/// The last cells of the table's rows: entry k is the distance for k + 1 rows of data.
std::vector<double> DTW::distances(int attribute) const
{
    constexpr double unreachable = 1e20;
    const int columns = m_Signal->GetLength();
    const ConstSpan<double> values = m_DataSet->GetColumn(attribute);
    const int rows = std::min(columns, values.size());
    std::vector<double> above(size_t(columns), unreachable);
    above[0] = 0.0;
    std::vector<double> result{above.back()};
    std::vector<double> cells(size_t(columns), unreachable);
    for (int row = 1; row < rows; ++row) {
        for (size_t column = 1; column < size_t(columns); ++column) {
            const double difference = values[row] - m_Signal->GetSignal()[column];
            cells[column] = difference * difference +
                            std::min({above[column], cells[column - 1], above[column - 1]});
        }
        result.push_back(cells.back());
        above = cells;
    }
    return result;
}
