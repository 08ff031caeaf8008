#pragma once

#include "alignedarray.h"
#include "complextorealfft.h"
#include "realtocomplexfft.h"

/// Cross-correlation of long data with a short filter, block by block of the data, so that the
/// length of the transforms does not depend on that of the data and stays in the processor's
/// cache.
class BlockCorrelation
{
public:
    /// For filters of filterLength values over dataLength values, 1 <= filterLength <= dataLength.
    BlockCorrelation(int dataLength, int filterLength);

    /// results[s + (m - 1) / 2] becomes the sum of data[s + j] * filter[j] over j from 0 to m - 1,
    /// m the filter's length, for every s where the filter lies in the data. Other results stay
    /// as they are.
    void Correlate(const double* data, const double* filter, float* results);

    /// The power of two that takes the least time for each value of the data.
    static int ChooseBlockLength(int dataLength, int filterLength);

private:
    void transformFilter(const double* filter);
    void correlateBlock(const double* data, int count);

    int m_DataLength;
    int m_FilterLength;
    int m_BlockLength;
    AlignedArray<double> m_Block;
    AlignedArray<std::complex<double>> m_Spectrum;
    AlignedArray<std::complex<double>> m_FilterSpectrum;
    RealToComplexFft m_Forward;
    ComplexToRealFft m_Backward;
};
