#pragma once

#include <QtGlobal>
#include <vector>

/// A read-only view of values that stand side by side in memory. They belong to someone else: the
/// view holds as long as they are neither moved nor freed. Sizes are int, as row numbers are.
template <typename T>
class ConstSpan
{
public:
    ConstSpan() = default;
    ConstSpan(const T* data, int size) : m_Data(data), m_Size(size) {}
    ConstSpan(const std::vector<T>& values) : m_Data(values.data()), m_Size(int(values.size())) {}

    const T* data() const { return m_Data; }
    int size() const { return m_Size; }
    bool empty() const { return m_Size == 0; }
    const T* begin() const { return m_Data; }
    const T* end() const { return m_Data + m_Size; }
    /// No bounds check.
    const T& operator[](qptrdiff index) const { return m_Data[index]; }

    /// The values from up to, but without, to. No bounds check.
    ConstSpan Part(int from, int to) const { return ConstSpan(m_Data + from, to - from); }

private:
    const T* m_Data = nullptr;
    int m_Size = 0;
};
