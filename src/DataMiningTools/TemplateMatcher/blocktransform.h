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
    void Forward() { m_Forward.Transform(m_Values.GetData(), m_Spectrum.GetData()); }
    /// Values times GetScale are those that Forward started from; destroys the spectrum.
    void Backward() { m_Backward.Transform(m_Spectrum.GetData(), m_Values.GetData()); }
    double GetScale() const { return m_Backward.GetScale(); }

    /// Takes count values and fills up with zeros.
    void SetValues(const double* values, int count);
    const AlignedArray<double>& GetValues() const { return m_Values; }
    AlignedArray<std::complex<double>>& GetSpectrum() { return m_Spectrum; }

private:
    AlignedArray<double> m_Values;
    AlignedArray<std::complex<double>> m_Spectrum;
    RealToComplexFft m_Forward;
    ComplexToRealFft m_Backward;
};
