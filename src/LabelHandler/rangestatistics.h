#pragma once

#include <limits>

class BehaviorLabel;
class DataSet;

/// What the values of one attribute over a range of rows come to, all in double.
struct RangeStatistics {
    static constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

    double m_Maximum = NoNumber;
    double m_Minimum = NoNumber;
    double m_Mean = NoNumber;
    /// Of the population: the root of the mean squared deviation.
    double m_StandardDeviation = NoNumber;
};

/// Takes the rows from up to, but without, to; rows outside the data are left out.
///
/// Without a row to take, maximum and minimum are the value of row from, where there is such a
/// row, and mean and deviation are not numbers. Maximum and minimum pass over values that are not
/// numbers; mean and deviation of a range with such a value are not numbers either. The deviation
/// is taken from the mean in a second pass, so a large offset costs no accuracy. attribute must
/// exist.
RangeStatistics ComputeRangeStatistics(const DataSet& data, int attribute, int from, int to);

/// What the values of one attribute over all instances of a behaviour come to.
struct BehaviorStatistics {
    double m_Maximum = 0;
    double m_Minimum = 0;
    double m_Mean = 0;
};

/// Extremes over the rows of all instances, starting from the first instance's first row. The mean
/// is the mean of the instances' means: short instances weigh as much as long ones, and one
/// without rows makes it not a number. All three are 0 for a behaviour without instances.
BehaviorStatistics ComputeBehaviorStatistics(const DataSet& data, const BehaviorLabel& behavior,
                                             int attribute);
