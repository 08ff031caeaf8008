#include "rangestatistics.h"

#include "behaviorlabel.h"
#include "cutsegment.h"
#include "dataset.h"
#include <algorithm>
#include <cmath>

namespace
{

double valueOrNoNumber(const DataSet& data, int attribute, int row)
{
    return row >= 0 && row < data.GetRowCount() ? data.GetRow(row)->GetValue(attribute)
                                                : RangeStatistics::NoNumber;
}

} // namespace

RangeStatistics ComputeRangeStatistics(const DataSet& data, int attribute, int from, int to)
{
    RangeStatistics statistics;
    statistics.m_Maximum = statistics.m_Minimum = valueOrNoNumber(data, attribute, from);
    const int first = std::max(from, 0);
    const int end = std::min(to, data.GetRowCount());
    if (first >= end)
        return statistics;
    const auto value = [&](int row) { return data.GetRow(row)->GetValue(attribute); };
    const double count = end - first;
    double sum = 0;
    for (int row = first; row < end; ++row) {
        // These pass over values that are not numbers, on either side.
        statistics.m_Maximum = std::fmax(statistics.m_Maximum, value(row));
        statistics.m_Minimum = std::fmin(statistics.m_Minimum, value(row));
        sum += value(row);
    }
    statistics.m_Mean = sum / count;
    double squares = 0;
    for (int row = first; row < end; ++row) {
        const double deviation = value(row) - statistics.m_Mean;
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
