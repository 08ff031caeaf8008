#pragma once

#include <complex>
#include <memory>
#include <vector>

class BlockTransform;
class RowWindow;

/// Cross-correlation of long data with a filter, block by block of the data, so that the length
/// of the transforms does not depend on that of the data and stays in the processor's cache.
class BlockCorrelation
{
public:
    /// For filters of filterLength values over dataLength values, 1 <= filterLength <= dataLength.
    BlockCorrelation(int dataLength, const double* filter, int filterLength);

    /// How many windows are taken in one block.
    int GetStep() const;
    /// The sums of data[s + j] * filter[j] over j for s from 0 to count - 1, count at most
    /// GetStep, good until the next call.
    const double* Correlate(const double* data, int count);

private:
    using Spectrum = std::vector<std::complex<double>>;

    int m_FilterLength;
    std::shared_ptr<BlockTransform> m_Transform;
    Spectrum m_FilterSpectrum;
};

/// results[s + (filterLength - 1) / 2] becomes the sum of rows[s + j] * filter[j] over j, for
/// every s where the filter lies in the rows. Other results stay as they are.
void CorrelateByBlocks(RowWindow& rows, const double* filter, int filterLength, float* results);
