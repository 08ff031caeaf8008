#include "datacolumn.h"

#include <algorithm>
#include <utility>
#ifdef Q_OS_LINUX
#include <sys/mman.h>
#endif

namespace
{

// Long columns are walked from end to end: fewer and larger pages make that, and the first writing,
// quicker. Only a wish, the system may refuse.
void askForLargePages(void* memory, size_t bytes)
{
#ifdef Q_OS_LINUX
    constexpr size_t page = 4096;
    constexpr size_t worthwhile = size_t(4) << 20;
    if (bytes < worthwhile)
        return;
    const size_t skipped = page - reinterpret_cast<quintptr>(memory) % page;
    madvise(static_cast<char*>(memory) + skipped, bytes - skipped, MADV_HUGEPAGE);
#else
    Q_UNUSED(memory)
    Q_UNUSED(bytes)
#endif
}

} // namespace

DataColumn::DataColumn(int size)
{
    Resize(size);
}

DataColumn::DataColumn(int size, double value) : DataColumn(size)
{
    std::fill(begin(), end(), value);
}

DataColumn::DataColumn(ConstSpan<double> values) : DataColumn(values.size())
{
    std::copy(values.begin(), values.end(), begin());
}

DataColumn& DataColumn::operator=(DataColumn&& other) noexcept
{
    DataColumn taken(std::move(other));
    swap(taken);
    return *this;
}

void DataColumn::Resize(int size)
{
    Reserve(size);
    m_Size = size;
}

void DataColumn::Reserve(int capacity)
{
    if (capacity > m_Capacity)
        allocate(capacity);
}

void DataColumn::ShrinkToFit()
{
    if (m_Size == 0)
        *this = DataColumn();
    else if (m_Size < m_Capacity)
        allocate(m_Size);
}

void DataColumn::swap(DataColumn& other) noexcept
{
    m_Values.swap(other.m_Values);
    std::swap(m_Size, other.m_Size);
    std::swap(m_Capacity, other.m_Capacity);
}

// The values move along; for long columns the system moves pages instead of bytes.
void DataColumn::allocate(int capacity)
{
    const size_t bytes = size_t(capacity) * sizeof(double);
    auto* values = static_cast<double*>(std::realloc(m_Values.get(), bytes));
    Q_CHECK_PTR(values);
    static_cast<void>(m_Values.release());
    m_Values.reset(values);
    m_Capacity = capacity;
    askForLargePages(values, bytes);
}
