#include "rowwindow.h"

#include "dataset.h"
#include <algorithm>
#include <cmath>

RowWindow::RowWindow(const DataSet& data, int attribute, int start, int end)
    : m_Data(data), m_Attribute(attribute), m_Start(start), m_End(end)
{
    for (int row = start; row < end; ++row) {
        const double value = data.GetRow(row)->GetValue(attribute);
        if (std::isfinite(value)) {
            m_LastNumber = value;
            break;
        }
    }
}

const double* RowWindow::Get(int from, int to)
{
    const int next = m_From + int(m_Values.size());
    m_Values.erase(m_Values.begin(), m_Values.begin() + std::min(from, next) - m_From);
    m_From = from;
    m_Values.resize(size_t(to - from));
    for (int row = std::max(from, next); row < to; ++row) {
        const double value = m_Data.GetRow(m_Start + row)->GetValue(m_Attribute);
        if (std::isfinite(value))
            m_LastNumber = value;
        m_Values[size_t(row - from)] = m_LastNumber;
    }
    return m_Values.data();
}
