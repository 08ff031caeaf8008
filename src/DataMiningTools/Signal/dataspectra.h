#pragma once

#include "blockcorrelation.h"

/// Data made ready to be correlated with many filters: the spectra of all its blocks are kept, so
/// that each filter costs one transform per block and not two. They take about as much memory as
/// the data, a little more for filters that are long beside a block.
class DataSpectra
{
public:
    /// For filters of up to longestFilter values, 1 <= longestFilter <= length of rows.
    DataSpectra(RowWindow& rows, int longestFilter);

    /// Hands the sums of rows[s + j] * filter[j] over j to sink, for every s where the filter
    /// lies in the rows, in order. 1 <= filterLength <= longestFilter.
    void Correlate(const double* filter, int filterLength, const WindowSink& sink);

private:
    int m_Length;
    BlockCorrelation m_Correlation;
    // One behind the other.
    std::vector<AlignedArray<std::complex<double>>> m_Blocks;
};
