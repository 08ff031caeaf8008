#include "runningnormalization.h"

#include "rowwindow.h"
#include <algorithm>
#include <cmath>

namespace
{

double square(double value)
{
    return value * value;
}

/// Takes the mean off the middle of a window of data, to which the sum goes on.
double centre(const double* middle, int half, int width, RunningSum& sum)
{
    sum.Subtract(middle[-half]);
    sum.Add(middle[half]);
    return *middle - double(sum.Get() / float(width));
}

} // namespace

RunningNormalization::RunningNormalization(RowWindow& rows, int width, int windows)
    : m_Rows(rows), m_Width(width), m_Half((width - 1) / 2),
      m_Centred(size_t(windows) + size_t(width) - 1), m_Roots(size_t(windows))
{
    const double* data = readRows(1);
    std::for_each(data, data + width, [this](double value) { m_Sum.Add(value); });
    const int meanEnd = rows.GetLength() - width / 2;
    for (int row = 0; row < width; ++row) {
        const bool isMiddle = row >= m_Half && row < meanEnd;
        const double value = isMiddle ? centre(data + row, m_Half, width, m_Sum) : data[row];
        m_Centred[size_t(row)] = value;
        m_Squares.Add(square(value));
    }
}

/// The rows of the next count windows, and those that the means of their last ones look at.
const double* RunningNormalization::readRows(int count)
{
    const int end = m_Start + count + m_Width - 1;
    return m_Rows.Get(m_Start, std::min(end + m_Half, m_Rows.GetLength()));
}

void RunningNormalization::Advance(int count)
{
    const double* data = readRows(count);
    double* centred = m_Centred.data();
    std::copy_n(centred + m_Count, m_Width - 1, centred);
    const int meanEnd = m_Rows.GetLength() - m_Width / 2 - m_Start;
    // Both sums wait for their last step most of the time: in one loop they wait together.
    RunningSum sum = m_Sum;
    RunningSum squares = m_Squares;
    for (int i = 0; i < count; ++i) {
        const int last = i + m_Width - 1;
        if (m_Start + i > 0)
            centred[last] = last < meanEnd ? centre(data + last, m_Half, m_Width, sum) : data[last];
        squares.Subtract(square(centred[i]));
        squares.Add(square(centred[i + 2 * m_Half]));
        squares.HoldAtZero();
        m_Roots[size_t(i)] = std::sqrt(squares.Get() / float(m_Width));
    }
    m_Sum = sum;
    m_Squares = squares;
    m_Start += count;
    m_Count = count;
}
