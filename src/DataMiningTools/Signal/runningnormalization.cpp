#include "runningnormalization.h"

#include "blockfft.h"
#include "rowwindow.h"
#include "vectorclones.h"
#include <algorithm>
#include <cmath>

namespace
{

/// Takes the mean off values, by the sums of the windows around them, and squares what is left.
SKERRYMOOR_VECTOR_CLONES
void takeMeansOff(const double* values, const float* sums, int count, float width, double* centred,
                  double* squares)
{
    for (int i = 0; i < count; ++i)
        centred[i] = values[i] - double(sums[i] / width);
    for (int i = 0; i < count; ++i)
        squares[i] = centred[i] * centred[i];
}

SKERRYMOOR_VECTOR_CLONES
void makeRoots(float* sums, int count, float width)
{
    for (int i = 0; i < count; ++i)
        sums[i] = std::sqrt(sums[i] / width);
}

} // namespace

RunningNormalization::RunningNormalization(RowWindow& rows, int width, int windows)
    : m_Rows(rows), m_Width(width), m_Half((width - 1) / 2),
      m_MeanEnd(rows.GetLength() - width / 2), m_Sums(RunningSum(), RunningSum(0.0F)),
      m_Centred(size_t(windows + width - 1 + Lead), BlockFft::Alignment),
      m_Squares(m_Centred.GetSize()), m_Roots(size_t(windows))
{
    start();
}

/// The rows of the next count windows, and those that the means look at which run ahead.
void RunningNormalization::readRows(int count)
{
    const int end = m_Start + count + m_Width - 1 + Lead + m_Half;
    m_Data = m_Rows.Get(m_Start, std::min(end, m_Rows.GetLength()));
}

void RunningNormalization::start()
{
    readRows(1);
    RunningSum& sum = m_Sums.GetFirst();
    std::for_each(m_Data, m_Data + m_Width, [&](double value) { sum.Add(value); });
    const int end = std::min(m_Width - 1 + Lead, m_Rows.GetLength());
    for (int row = 0; row < end; ++row) {
        const bool isMiddle = row >= m_Half && row < m_MeanEnd;
        const float slid = isMiddle ? sum.Slide(m_Data[row - m_Half], m_Data[row + m_Half]) : 0.0F;
        centre(row, isMiddle, 1, &slid);
    }
    std::for_each(m_Squares.begin(), m_Squares.begin() + m_Width,
                  [this](double square) { m_Sums.GetSecond().Add(square); });
}

void RunningNormalization::Advance(int count)
{
    dropPassedRows();
    readRows(count);
    for (int done = 0; done < count; done += RunningSumPair::MaximumSteps)
        advance(done, std::min(count - done, RunningSumPair::MaximumSteps));
    makeRoots(m_Roots.data(), count, float(m_Width));
    if (m_Start + count + m_Width - 1 == m_Rows.GetLength())
        std::fill(m_Centred.GetData() + count + m_Width - 1,
                  m_Centred.GetData() + m_Centred.GetSize(), 0.0);
    m_Start += count;
    m_Count = count;
}

void RunningNormalization::dropPassedRows()
{
    if (m_Count == 0)
        return;
    const int rest = m_Width - 1 + Lead;
    std::copy_n(m_Centred.GetData() + m_Count, rest, m_Centred.GetData());
    std::copy_n(m_Squares.data() + m_Count, rest, m_Squares.data());
}

/// Slides both sums over some windows: that of the squares to those windows, that of the mean to
/// the rows ahead, as long as they are middles.
void RunningNormalization::advance(int window, int count)
{
    const int row = window + m_Width - 1 + Lead;
    const int means = std::clamp(m_MeanEnd - m_Start - row, 0, count);
    float sums[RunningSumPair::MaximumSteps];
    const double* leaving = m_Squares.data() + window;
    const double* entering = leaving + 2 * m_Half;
    float* roots = m_Roots.data() + window;
    m_Sums.Slide({m_Data + row - m_Half, m_Data + row + m_Half, sums}, {leaving, entering, roots},
                 means);
    for (int i = means; i < count; ++i)
        roots[i] = m_Sums.GetSecond().Slide(leaving[i], entering[i]);
    centre(row, means, std::clamp(m_Rows.GetLength() - m_Start - row, 0, count), sums);
}

/// Centres rows from row on: the first means of count rows are middles, the rest keep their mean.
void RunningNormalization::centre(int row, int means, int count, const float* sums)
{
    double* centred = m_Centred.GetData() + row;
    takeMeansOff(m_Data + row, sums, means, float(m_Width), centred, m_Squares.data() + row);
    for (int i = means; i < count; ++i) {
        centred[i] = m_Data[row + i];
        m_Squares[size_t(row + i)] = centred[i] * centred[i];
    }
}
