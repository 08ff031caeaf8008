#pragma once

#include <vector>

class DataSet;
class SignalTemplateDataObject;

/// Dynamic time warping distances between a data set and a signal (Sakoe and Chiba 1978), without
/// a limit to the warping.
class DTW
{
public:
    DTW(const DataSet* dataSet, const SignalTemplateDataObject* signal)
        : m_DataSet(dataSet), m_Signal(signal)
    {
    }

    /// results[i - start] becomes the distance between the signal and as many rows as it has
    /// values, or as there are from row i on; all are then brought to 0 to 1. Rows and attribute
    /// must be there, else all results are 0.
    ///
    /// The rows compared are counted from the recording's start, not from i: all distances are the
    /// same but those near the end, where fewer rows are left than the signal is long.
    void ComputeDTW(int attribute, float* results, int start, int end) const;

private:
    std::vector<double> distances(int attribute) const;

    const DataSet* m_DataSet;
    const SignalTemplateDataObject* m_Signal;
};
