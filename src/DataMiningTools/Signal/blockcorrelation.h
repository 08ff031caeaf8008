#pragma once

#include "blockfft.h"
#include <functional>

class RowWindow;

/// Takes the results of count windows of the data, the first of which starts at value first.
using WindowSink = std::function<void(int first, const double* results, int count)>;

/// The spectrum of a filter, ready to be multiplied with those of blocks of data.
class FilterSpectrum
{
public:
    /// 1 <= filterLength <= length of fft.
    FilterSpectrum(const BlockFft& fft, const double* filter, int filterLength);

    /// Makes the spectrum of a block into that of its correlation with the filter.
    void MultiplyInto(std::complex<double>* spectrum) const;

private:
    // The conjugate, with the factor that the way back leaves out.
    AlignedArray<std::complex<double>> m_Factors;
};

/// Cross-correlation of long data with filters, block by block of the data, so that the length of
/// the transforms does not depend on that of the data and stays in the processor's cache: the
/// overlap-save method (Oppenheim and Schafer 1975, Digital Signal Processing). What it works on
/// is its own; several can work on blocks of one length in turn.
class BlockCorrelation
{
public:
    /// For filters of up to longestFilter values over dataLength values, 1 <= longestFilter <=
    /// dataLength.
    BlockCorrelation(int dataLength, int longestFilter);

    const BlockFft& GetFft() const { return *m_Fft; }
    /// How many windows of the longest filter there are in one block.
    int GetStep() const { return m_Step; }

    /// The sums of block[s + j] * filter[j] over j, for s from 0 to GetStep - 1 at least, good
    /// until the next call. block: as many values as the transform has, aligned for it.
    const double* Correlate(double* block, const FilterSpectrum& filter);
    /// The same for the spectrum of a block, which stays as it is.
    const double* CorrelateSpectrum(const std::complex<double>* block,
                                    const FilterSpectrum& filter);

private:
    const double* transformBack(const FilterSpectrum& filter);

    std::shared_ptr<const BlockFft> m_Fft;
    int m_Step;
    AlignedArray<std::complex<double>> m_Spectrum;
    AlignedArray<double> m_Sums;
};

/// Hands the sums of rows[s + j] * filter[j] over j to sink, for every s where the filter lies in
/// the rows, in order.
void CorrelateByBlocks(RowWindow& rows, const double* filter, int filterLength,
                       const WindowSink& sink);
