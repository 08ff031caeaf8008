#include "datacolumn.h"

#include <algorithm>
#include <utility>
#ifdef Q_OS_LINUX
#include <sys/mman.h>
#endif

namespace
{

// A column that is written at once from end to end fills large pages quicker than small ones. Only
// a wish, the system may refuse.
void askForLargePages(double* memory, int count)
{
#ifdef MADV_HUGEPAGE
    constexpr size_t page = 4096;
    constexpr int worthwhile = 1 << 19;
    if (count < worthwhile)
        return;
    const size_t skipped = page - reinterpret_cast<quintptr>(memory) % page;
    madvise(reinterpret_cast<char*>(memory) + skipped, size_t(count) * sizeof(double) - skipped,
            MADV_HUGEPAGE);
#else
    Q_UNUSED(memory)
    Q_UNUSED(count)
#endif
}

} // namespace

DataColumn::DataColumn(int size)
{
    Resize(size);
    askForLargePages(data(), size);
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
    const bool hasRoom = Reserve(size);
    Q_CHECK_PTR(hasRoom);
    m_Size = size;
}

bool DataColumn::Reserve(int capacity)
{
    return capacity <= m_Capacity || allocate(capacity);
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
bool DataColumn::allocate(int capacity)
{
    const size_t bytes = size_t(capacity) * sizeof(double);
    auto* values = static_cast<double*>(std::realloc(m_Values.get(), bytes));
    if (!values)
        return false;
    static_cast<void>(m_Values.release());
    m_Values.reset(values);
    m_Capacity = capacity;
    return true;
}
