#include "rowwindow.h"

#include "vectorclones.h"
#include <algorithm>
#include <cmath>
#include <cstdint>

namespace
{

SKERRYMOOR_VECTOR_CLONES
bool holdsGap(const double* values, int count)
{
    std::int64_t gaps = 0;
    for (int i = 0; i < count; ++i)
        gaps |= !(values[i] - values[i] == 0.0);
    return gaps != 0;
}

bool isNumber(double value)
{
    return std::isfinite(value);
}

} // namespace

RowWindow::RowWindow(ConstSpan<double> rows) : m_Rows(rows)
{
    const auto* number = std::find_if(rows.begin(), rows.end(), isNumber);
    if (number != rows.end())
        m_NumberBefore = *number;
}

void RowWindow::passRows(int from)
{
    for (int row = from - 1; row >= m_From; --row) {
        if (isNumber(m_Rows[row])) {
            m_NumberBefore = m_Rows[row];
            break;
        }
    }
    m_From = from;
}

const double* RowWindow::Get(int from, int to)
{
    passRows(from);
    const int firstNew = std::max(from, m_To);
    if (holdsGap(m_Rows.data() + firstNew, to - firstNew))
        m_GapEnd = to;
    m_To = to;
    if (m_GapEnd <= from)
        return m_Rows.data() + from;
    m_Bridged.assign(m_Rows.data() + from, m_Rows.data() + to);
    double number = m_NumberBefore;
    for (double& value : m_Bridged)
        value = number = isNumber(value) ? value : number;
    return m_Bridged.data();
}
