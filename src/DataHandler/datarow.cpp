#include "datarow.h"

#include <algorithm>
#include <limits>

namespace
{
constexpr double missing = std::numeric_limits<double>::quiet_NaN();
}

void DataRow::SetValues(const QStringList& texts)
{
    std::fill_n(m_Values.get(), m_Count, missing);
    m_Count = 0;
    Reserve(texts.size());
    for (const QString& text : texts)
        m_Values[size_t(m_Count++)] = text.toDouble();
}

void DataRow::SetValues(const double* values, int count)
{
    std::fill_n(m_Values.get(), m_Count, missing);
    m_Count = 0;
    Reserve(count);
    std::copy_n(values, count, m_Values.get());
    m_Count = count;
}

void DataRow::SetValue(int attribute, double value)
{
    if (attribute >= 0 && attribute < m_Count)
        m_Values[size_t(attribute)] = value;
}

void DataRow::RemoveValue(int attribute)
{
    if (attribute < 0 || attribute >= m_Count)
        return;
    double* values = m_Values.get();
    std::copy(values + attribute + 1, values + m_Count, values + attribute);
    values[--m_Count] = missing;
}

void DataRow::Reserve(int capacity)
{
    if (capacity <= m_Capacity)
        return;
    std::unique_ptr<double[]> values(new double[size_t(capacity)]);
    std::copy_n(m_Values.get(), m_Count, values.get());
    std::fill(values.get() + m_Count, values.get() + capacity, missing);
    m_Values = std::move(values);
    m_Capacity = capacity;
}
