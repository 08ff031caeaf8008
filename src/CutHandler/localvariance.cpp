#include "localvariance.h"

#include "rowprogress.h"
#include <algorithm>
#include <array>

namespace
{

// Sums in single precision are chains of additions that wait for one another. Those of several
// windows side by side don't, and give the same numbers.
template <size_t Lanes>
using Sums = std::array<float, Lanes>;

template <size_t Lanes>
Sums<Lanes> meansOfBlocks(const double* values, size_t window, size_t step)
{
    Sums<Lanes> sums{};
    for (size_t i = 0; i < window; ++i) {
        for (size_t lane = 0; lane < Lanes; ++lane)
            sums[lane] = float(double(sums[lane]) + values[lane * step + i]);
    }
    for (float& sum : sums)
        sum /= float(window);
    return sums;
}

template <size_t Lanes>
Sums<Lanes> variancesFrom(const float* values, size_t window)
{
    Sums<Lanes> means{};
    for (size_t i = 0; i < window; ++i) {
        for (size_t lane = 0; lane < Lanes; ++lane)
            means[lane] += values[lane + i];
    }
    for (float& mean : means)
        mean /= float(window);
    Sums<Lanes> squares{};
    for (size_t i = 0; i < window; ++i) {
        for (size_t lane = 0; lane < Lanes; ++lane) {
            const float difference = values[lane + i] - means[lane];
            squares[lane] += difference * difference;
        }
    }
    for (float& square : squares)
        square /= float(window);
    return squares;
}

bool goesOn(RowProgress* progress, size_t rows)
{
    return !progress || progress->Advance(qint64(rows));
}

// A window that is as long as the recording takes as long as a thousand short ones.
void tellByWork(RowProgress* progress, int window)
{
    constexpr int valuesBetween = 1 << 20;
    if (progress)
        progress->SetInterval(std::max(1, std::min(1024, valuesBetween / std::max(1, window))));
}

// The number of starts 0, step, ... that lie more than window before the end.
size_t countBlocks(size_t values, int window, int step)
{
    if (window < 1 || step < 1 || values <= size_t(window))
        return 0;
    return (values - size_t(window) - 1) / size_t(step) + 1;
}

} // namespace

std::vector<float> BlockMeans(ConstSpan<double> values, int window, int step, RowProgress* progress)
{
    constexpr size_t lanes = 8;
    std::vector<float> smooth(size_t(values.size()), 0.0F);
    std::vector<float> means(countBlocks(smooth.size(), window, step));
    if (means.empty())
        return smooth;
    tellByWork(progress, window);
    const auto width = size_t(window);
    const auto stride = size_t(step);
    size_t block = 0;
    for (; block + lanes <= means.size() && goesOn(progress, lanes); block += lanes) {
        const auto found = meansOfBlocks<lanes>(values.data() + block * stride, width, stride);
        std::copy(found.begin(), found.end(), means.begin() + std::ptrdiff_t(block));
    }
    for (; block < means.size() && goesOn(progress, 1); ++block)
        means[block] = meansOfBlocks<1>(values.data() + block * stride, width, stride)[0];
    for (size_t i = 0; i < smooth.size(); ++i)
        smooth[i] = means[std::min(i / stride, means.size() - 1)];
    return smooth;
}

std::vector<float> LocalVariances(const std::vector<float>& values, int window,
                                  RowProgress* progress)
{
    constexpr size_t lanes = 16;
    std::vector<float> variances(values.size(), 0.0F);
    const size_t windows = countBlocks(values.size(), window, 1);
    if (windows == 0)
        return variances;
    tellByWork(progress, window);
    size_t start = 0;
    for (; start + lanes <= windows && goesOn(progress, lanes); start += lanes) {
        const auto found = variancesFrom<lanes>(&values[start], size_t(window));
        std::copy(found.begin(), found.end(), variances.begin() + std::ptrdiff_t(start));
    }
    for (; start < windows && goesOn(progress, 1); ++start)
        variances[start] = variancesFrom<1>(&values[start], size_t(window))[0];
    std::fill(variances.begin() + std::ptrdiff_t(windows), variances.end(), variances[windows - 1]);
    return variances;
}
