#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <stdexcept>
#include <type_traits>

/// Thrown when there is no memory left for an array.
class MemoryLimitError : public std::bad_alloc
{
public:
    const char* what() const noexcept override { return "Memory limits exceeded"; }
};

/// An owned array of zeros whose first value stands at a multiple of the alignment, as the fast
/// forms of the Fourier transforms want it.
template <typename T>
class AlignedArray
{
    static_assert(std::is_trivially_destructible_v<T>);

public:
    static constexpr size_t DefaultAlignment = 16;

    /// alignment is a power of two and a multiple of 8, else std::invalid_argument is thrown.
    explicit AlignedArray(size_t size, size_t alignment = DefaultAlignment)
        : m_Size(size), m_Values(allocate(size, alignment))
    {
        std::uninitialized_fill_n(m_Values.get(), size, T());
    }

    size_t GetSize() const { return m_Size; }
    T* GetData() { return m_Values.get(); }
    const T* GetData() const { return m_Values.get(); }
    /// No bounds check.
    T& operator[](size_t index) { return m_Values[index]; }
    const T& operator[](size_t index) const { return m_Values[index]; }

private:
    struct Free {
        void operator()(T* values) const { std::free(values); }
    };

    static T* allocate(size_t size, size_t alignment)
    {
        if (alignment % 8 != 0 || alignment == 0 || (alignment & (alignment - 1)) != 0)
            throw std::invalid_argument("Invalid alignment requested");
        void* memory = nullptr;
        if (size > PTRDIFF_MAX / sizeof(T) ||
            posix_memalign(&memory, alignment, std::max<size_t>(size, 1) * sizeof(T)) != 0)
            throw MemoryLimitError();
        return static_cast<T*>(memory);
    }

    size_t m_Size;
    std::unique_ptr<T[], Free> m_Values;
};
