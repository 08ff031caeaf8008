#include "rangestatistics.h"

#include "behaviorlabel.h"
#include "cutsegment.h"
#include "dataset.h"
#include <algorithm>
#include <cmath>

namespace
{

double valueOrNoNumber(ConstSpan<double> values, int row)
{
    return row >= 0 && row < values.size() ? values[row] : RangeStatistics::NoNumber;
}

} // namespace

RangeStatistics ComputeRangeStatistics(const DataSet& data, int attribute, int from, int to)
{
    const ConstSpan<double> values = data.GetColumn(attribute);
    RangeStatistics statistics;
    statistics.m_Maximum = statistics.m_Minimum = valueOrNoNumber(values, from);
    const int first = std::max(from, 0);
    const int end = std::min(to, values.size());
    if (first >= end)
        return statistics;
    const double count = end - first;
    double sum = 0;
    for (const double value : values.Part(first, end)) {
        // These pass over values that are not numbers, on either side.
        statistics.m_Maximum = std::fmax(statistics.m_Maximum, value);
        statistics.m_Minimum = std::fmin(statistics.m_Minimum, value);
        sum += value;
    }
    statistics.m_Mean = sum / count;
    double squares = 0;
    for (const double value : values.Part(first, end)) {
        const double deviation = value - statistics.m_Mean;
        squares += deviation * deviation;
    }
    statistics.m_StandardDeviation = std::sqrt(squares / count);
    return statistics;
}

BehaviorStatistics ComputeBehaviorStatistics(const DataSet& data, const BehaviorLabel& behavior,
                                             int attribute)
{
    const int count = behavior.GetInstanceCount();
    if (count == 0)
        return {};
    BehaviorStatistics total{RangeStatistics::NoNumber, RangeStatistics::NoNumber, 0};
    for (int i = 0; i < count; ++i) {
        const CutSegment* segment = behavior.GetInstance(i)->GetSegment();
        const auto one =
            ComputeRangeStatistics(data, attribute, segment->GetFrom(), segment->GetTo());
        // An instance without rows counts only as the start of the comparison.
        if (i == 0 || segment->GetLength() > 0) {
            total.m_Maximum = std::fmax(total.m_Maximum, one.m_Maximum);
            total.m_Minimum = std::fmin(total.m_Minimum, one.m_Minimum);
        }
        total.m_Mean += one.m_Mean;
    }
    total.m_Mean /= count;
    return total;
}
