#include "blockfft.h"

#include <map>

namespace
{

/// Threads do not pay within one block.
size_t onOneThread(int length)
{
    FftPlan::SetThreadCount(1);
    FftPlan::SetPlannerEffort(FftPlan::EstimateEffort);
    return size_t(length);
}

} // namespace

BlockFft::BlockFft(int length)
    : BlockFft(length, AlignedArray<double>(onOneThread(length), Alignment),
               AlignedArray<std::complex<double>>(size_t(length) / 2 + 1, Alignment))
{
}

// The arrays are for planning only.
BlockFft::BlockFft(int length, AlignedArray<double> values,
                   AlignedArray<std::complex<double>> spectrum)
    : m_Forward(length, values.GetData(), spectrum.GetData()),
      m_Backward(length, spectrum.GetData(), values.GetData())
{
}

std::shared_ptr<const BlockFft> BlockFft::OfLength(int length)
{
    constexpr int longestShared = 65536;
    static std::map<int, std::shared_ptr<const BlockFft>> shared;
    if (length > longestShared)
        return std::make_shared<BlockFft>(length);
    auto& fft = shared[length];
    if (!fft)
        fft = std::make_shared<BlockFft>(length);
    return fft;
}

AlignedArray<double> BlockFft::MakeValues() const
{
    return AlignedArray<double>(size_t(GetLength()), Alignment);
}

AlignedArray<std::complex<double>> BlockFft::MakeSpectrum() const
{
    return AlignedArray<std::complex<double>>(size_t(GetSpectrumLength()), Alignment);
}
