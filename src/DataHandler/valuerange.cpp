#include "valuerange.h"

#include <algorithm>

namespace
{

// Extremes of many values side by side do not wait for one another, and are found several at once.
constexpr int lanes = 64;

struct Extremes {
    double m_Lowest[lanes];
    double m_Highest[lanes];
};

Extremes findExtremes(ConstSpan<double> values)
{
    Extremes found;
    std::fill_n(found.m_Lowest, lanes, double(ValueRange::StartMinimum));
    std::fill_n(found.m_Highest, lanes, double(ValueRange::StartMaximum));
    const auto take = [&found](int lane, double value) {
        found.m_Lowest[lane] = value < found.m_Lowest[lane] ? value : found.m_Lowest[lane];
        found.m_Highest[lane] = value > found.m_Highest[lane] ? value : found.m_Highest[lane];
    };
    int row = 0;
    for (; row <= values.size() - lanes; row += lanes) {
        for (int lane = 0; lane < lanes; ++lane)
            take(lane, values[row + lane]);
    }
    for (; row < values.size(); ++row)
        take(0, values[row]);
    return found;
}

} // namespace

ValueRange ComputeValueRange(ConstSpan<double> values)
{
    // Narrowing keeps order, so the extreme doubles narrowed once are the extremes of the narrowed
    // values.
    const Extremes found = findExtremes(values);
    const double lowest = *std::min_element(found.m_Lowest, found.m_Lowest + lanes);
    ValueRange range;
    range.m_Minimum = float(lowest);
    range.m_Maximum = float(*std::max_element(found.m_Highest, found.m_Highest + lanes));
    // Zeros equal each other whatever their sign; the first one counts.
    if (range.m_Minimum == 0.0F && lowest >= 0.0) {
        const auto isZero = [](double value) { return float(value) == 0.0F; };
        range.m_Minimum = float(*std::find_if(values.begin(), values.end(), isZero));
    }
    return range;
}
