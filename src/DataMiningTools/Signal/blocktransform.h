#pragma once

#include "alignedarray.h"
#include "complextorealfft.h"
#include "realtocomplexfft.h"

/// Both directions of a transform of one length, with the arrays they work on.
class BlockTransform
{
public:
    explicit BlockTransform(int length);

    /// Short ones are kept for the next search, as planning and the wisdom file take longer than
    /// searching a short recording.
    static std::shared_ptr<BlockTransform> OfLength(int length);

    int GetLength() const { return m_Forward.GetLength(); }
    /// Transforms count values and zeros behind them.
    void Forward(const double* values, int count);
    /// Values times GetScale are those that Forward started from; destroys the spectrum. Good
    /// until the next transform.
    const double* Backward();
    double GetScale() const { return m_Backward.GetScale(); }
    AlignedArray<std::complex<double>>& GetSpectrum() { return m_Spectrum; }

private:
    AlignedArray<double> m_Values;
    AlignedArray<std::complex<double>> m_Spectrum;
    RealToComplexFft m_Forward;
    ComplexToRealFft m_Backward;
};
