#pragma once

#include "cutparameters.h"
#include <vector>

class DataSet;

/// Finds where three attributes, mostly those of acceleration, change sharply: the persistent
/// maxima of their local variance.
class LocalVarianceExtractor
{
public:
    void setDataSet(const DataSet* dataSet) { m_DataSet = dataSet; }
    /// None without a data set or without one of the attributes.
    void extract(const LocalVarianceParameters& parameters);
    /// The rows of the maxima, the least persistent first.
    const std::vector<int>& getIndices() const { return m_Indices; }

private:
    std::vector<float> combinedVariance(const LocalVarianceParameters& parameters) const;

    const DataSet* m_DataSet = nullptr;
    std::vector<int> m_Indices;
};
