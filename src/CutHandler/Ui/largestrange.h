#pragma once

class DataSet;

/// The difference between the highest and the lowest value of that attribute which has the largest
/// one, rounded up; as of the last ComputeRanges. 0 without values, infinite with infinite ones.
double LargestRange(const DataSet& dataSet);
