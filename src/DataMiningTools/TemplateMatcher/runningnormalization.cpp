#include "runningnormalization.h"

#include <algorithm>
#include <cmath>

namespace
{

/// A sum in single precision, each step of which is taken in double.
class RunningSum
{
public:
    void Add(double value) { m_Sum = float(double(m_Sum) + value); }
    void Subtract(double value) { m_Sum = float(double(m_Sum) - value); }
    void HoldAtZero() { m_Sum = m_Sum < 0.0F ? 0.0F : m_Sum; }
    float Get() const { return m_Sum; }

private:
    float m_Sum = 0.0F;
};

double square(double value)
{
    return value * value;
}

} // namespace

RunningNormalization NormalizeRunning(const double* data, int length, int window)
{
    const int half = (window - 1) / 2;
    const int meanEnd = length - window / 2;
    const auto width = float(window);
    RunningNormalization result;
    result.m_Centred.assign(data, data + length);
    result.m_RootMeanSquare.resize(size_t(length));
    double* centred = result.m_Centred.data();
    float* roots = result.m_RootMeanSquare.data();

    RunningSum sum;
    std::for_each(data, data + window, [&](double value) { sum.Add(value); });
    const auto centre = [&](int row) {
        sum.Subtract(data[row - half]);
        sum.Add(data[row + half]);
        centred[row] = data[row] - double(sum.Get() / width);
    };
    for (int row = half; row < std::min(window, meanEnd); ++row)
        centre(row);

    RunningSum squares;
    std::for_each(centred, centred + window, [&](double value) { squares.Add(square(value)); });
    // Both sums wait for their last step most of the time: in one loop they wait together.
    for (int row = 2 * half; row < length; ++row) {
        if (row >= window && row < meanEnd)
            centre(row);
        squares.Subtract(square(centred[row - 2 * half]));
        squares.Add(square(centred[row]));
        squares.HoldAtZero();
        roots[row - half] = std::sqrt(squares.Get() / width);
    }
    return result;
}
