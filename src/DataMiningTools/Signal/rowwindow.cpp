#include "rowwindow.h"

#include "dataset.h"
#include "processorclones.h"
#include <algorithm>
#include <cmath>
#include <cstdint>

namespace
{

SKERRYMOOR_PROCESSOR_CLONES
bool holdsGap(const double* values, int count)
{
    std::int64_t gaps = 0;
    for (int i = 0; i < count; ++i)
        gaps |= !(values[i] - values[i] == 0.0);
    return gaps != 0;
}

} // namespace

void ReadRows(const DataSet& data, int attribute, int from, int to, double* values)
{
    const ConstSpan<double> rows = data.GetColumn(attribute).Part(from, to);
    std::copy(rows.begin(), rows.end(), values);
}

RowWindow::RowWindow(const DataSet& data, int attribute, int start, int end)
    : m_Data(data), m_Attribute(attribute), m_Start(start), m_End(end)
{
    for (int row = start; row < end; ++row) {
        double value = 0.0;
        ReadRows(data, attribute, row, row + 1, &value);
        if (std::isfinite(value)) {
            m_LastNumber = value;
            break;
        }
    }
}

const double* RowWindow::Get(int from, int to)
{
    const int first = std::max(from, m_To);
    std::copy(m_Values.begin() + std::min(from, m_To) - m_From, m_Values.begin() + m_To - m_From,
              m_Values.begin());
    if (m_Values.size() < size_t(to - from))
        m_Values.resize(size_t(to - from));
    m_From = from;
    m_To = to;
    double* values = m_Values.data() + (first - from);
    ReadRows(m_Data, m_Attribute, m_Start + first, m_Start + to, values);
    bridgeGaps(values, to - first);
    return m_Values.data();
}

void RowWindow::bridgeGaps(double* values, int count)
{
    for (int i = holdsGap(values, count) ? 0 : count; i < count; ++i) {
        if (!std::isfinite(values[i]))
            values[i] = i > 0 ? values[i - 1] : m_LastNumber;
    }
    if (count > 0)
        m_LastNumber = values[count - 1];
}
