#pragma once

#include "constspan.h"
#include <cstdlib>
#include <memory>

/// The memory of one attribute: one value per row, side by side. Owned, moved but never copied by
/// accident. Nothing outside knows how the memory is come by, so that it could one day be a file
/// mapped into memory.
class DataColumn
{
public:
    DataColumn() = default;
    /// size values, not set yet: for whoever writes all of them.
    explicit DataColumn(int size);
    DataColumn(int size, double value);
    /// A copy.
    explicit DataColumn(ConstSpan<double> values);
    DataColumn(DataColumn&& other) noexcept { swap(other); }
    DataColumn& operator=(DataColumn&& other) noexcept;

    int size() const { return m_Size; }
    bool empty() const { return m_Size == 0; }
    double* data() { return m_Values.get(); }
    const double* data() const { return m_Values.get(); }
    double* begin() { return data(); }
    double* end() { return data() + m_Size; }
    const double* begin() const { return data(); }
    const double* end() const { return data() + m_Size; }
    /// No bounds check.
    double& operator[](qptrdiff row) { return data()[row]; }
    double operator[](qptrdiff row) const { return data()[row]; }
    operator ConstSpan<double>() const { return {data(), m_Size}; }

    /// Appends a value. Where no room is left, half as much again is made; false, and nothing
    /// changed, when there is no memory for that.
    bool Append(double value)
    {
        if (m_Size == m_Capacity && !Reserve(m_Capacity + m_Capacity / 2 + 16))
            return false;
        m_Values[m_Size++] = value;
        return true;
    }
    /// Cuts values off at the end, or appends values that are not set yet.
    void Resize(int size);
    /// Makes room for capacity values in all; false, and nothing changed, when there is no memory
    /// for that. Room that is never written costs nothing where the system hands memory out page by
    /// page.
    bool Reserve(int capacity);
    /// Gives back what room there is behind the last value.
    void ShrinkToFit();

private:
    struct Free {
        void operator()(double* values) const { std::free(values); }
    };

    void swap(DataColumn& other) noexcept;
    bool allocate(int capacity);

    std::unique_ptr<double[], Free> m_Values;
    int m_Size = 0;
    int m_Capacity = 0;
};
