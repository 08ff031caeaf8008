#pragma once

#include "cutparameters.h"
#include "progress.h"
#include <vector>

class DataSet;
class RowProgress;

/// Finds where three attributes, mostly those of acceleration, change sharply: the persistent
/// maxima of their local variance.
class LocalVarianceExtractor
{
public:
    void setDataSet(const DataSet* dataSet) { m_DataSet = dataSet; }
    /// None without a data set or without one of the attributes, or when the progress asked to
    /// stop.
    void extract(const LocalVarianceParameters& parameters,
                 Progress& progress = NoProgress::Shared());
    /// The rows of the maxima, the least persistent first.
    const std::vector<int>& getIndices() const { return m_Indices; }

private:
    std::vector<float> combinedVariance(const LocalVarianceParameters& parameters,
                                        RowProgress& progress) const;

    const DataSet* m_DataSet = nullptr;
    std::vector<int> m_Indices;
};
