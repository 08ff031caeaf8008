#include "resultreduction.h"

#include "stepscale.h"
#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

// The steps of one pixel; the best of them is known by its place.
PositionValue bestOfPixel(const SearchResults& results, const StepScale& scale, int from, int to)
{
    float best = -std::numeric_limits<float>::infinity();
    int bestStep = from;
    for (int r = 0; r < results.m_Factors; ++r) {
        const float* values = results.m_Values[r];
        for (int k = from; k < to; ++k) {
            if (values[k] > best) {
                best = values[k];
                bestStep = k;
            }
        }
    }
    return {scale.ToPixel(bestStep), best};
}

bool isOnScale(int step, const StepScale& scale)
{
    return step >= scale.GetFrom() && step < scale.GetTo();
}

} // namespace

std::vector<PositionValue> computePositionValueList(const SearchResults& results,
                                                    const StepScale& scale)
{
    std::vector<PositionValue> list;
    if (results.IsEmpty())
        return list;
    const int end = std::min(scale.GetTo(), results.m_Steps);
    for (int step = std::max(scale.GetFrom(), 0); step < end;) {
        const float nextPixel = std::floor(scale.ToPixel(step)) + 1;
        const int next = std::min(scale.FindStep(nextPixel), end);
        list.push_back(bestOfPixel(results, scale, step, next));
        step = next;
    }
    return list;
}

std::vector<PositionValue> computePositionValueList(const SearchResults& results, int factor,
                                                    const StepScale& scale)
{
    return computePositionValueList({results.m_Values + factor, 1, results.m_Steps}, scale);
}

std::vector<int> computeMatchPixels(const std::vector<int>& centers, const StepScale& scale)
{
    std::vector<int> pixels;
    for (const int center : centers) {
        const int pixel = int(scale.ToPixel(center));
        if (isOnScale(center, scale) && (pixels.empty() || pixels.back() != pixel))
            pixels.push_back(pixel);
    }
    return pixels;
}

std::vector<int> computeMatchPixels(const CenterPoints& matches, const StepScale& scale)
{
    std::vector<int> all;
    for (const std::vector<int>& centers : matches) {
        const std::vector<int> pixels = computeMatchPixels(centers, scale);
        all.insert(all.end(), pixels.begin(), pixels.end());
    }
    return all;
}

std::vector<int> computeMatchDistribution(const CenterPoints& matches, const StepScale& scale,
                                          int binWidth)
{
    std::vector<int> counts;
    for (const std::vector<int>& centers : matches) {
        for (const int center : centers) {
            if (!isOnScale(center, scale))
                continue;
            const auto bin = size_t(scale.ToPixel(center) - scale.GetStart()) / size_t(binWidth);
            if (bin >= counts.size())
                counts.resize(bin + 1);
            ++counts[bin];
        }
    }
    return counts;
}
