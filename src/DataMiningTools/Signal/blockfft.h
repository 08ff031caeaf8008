#pragma once

#include "alignedarray.h"
#include "complextorealfft.h"
#include "realtocomplexfft.h"

/// Copies values to the front of a block and fills the rest with zeros.
inline void FillBlock(const double* values, int count, AlignedArray<double>& block)
{
    std::fill(std::copy_n(values, count, block.GetData()), block.GetData() + block.GetSize(), 0.0);
}

/// Plans for both directions of a transform of one length. They hold no values: those belong to
/// whoever transforms, so that any number of transforms of one length can be under way.
class BlockFft
{
public:
    /// Where a block starts: at a cache line, which the widest instructions want.
    static constexpr size_t Alignment = 64;

    explicit BlockFft(int length);

    /// Short ones are shared by all searches of a run, as planning and the wisdom file take longer
    /// than searching a short recording.
    static std::shared_ptr<const BlockFft> OfLength(int length);

    int GetLength() const { return m_Forward.GetLength(); }
    int GetSpectrumLength() const { return m_Forward.GetSpectrumLength(); }
    /// Zeros that Forward and Backward can work on.
    AlignedArray<double> MakeValues() const;
    AlignedArray<std::complex<double>> MakeSpectrum() const;

    /// Both arrays are aligned at 16 bytes at least, and not the same. Forward keeps values.
    void Forward(double* values, std::complex<double>* spectrum) const
    {
        m_Forward.Transform(values, spectrum);
    }
    /// Values times GetScale are those that Forward started from. Destroys spectrum.
    void Backward(std::complex<double>* spectrum, double* values) const
    {
        m_Backward.Transform(spectrum, values);
    }
    double GetScale() const { return m_Backward.GetScale(); }

private:
    BlockFft(int length, AlignedArray<double> values, AlignedArray<std::complex<double>> spectrum);

    RealToComplexFft m_Forward;
    ComplexToRealFft m_Backward;
};
