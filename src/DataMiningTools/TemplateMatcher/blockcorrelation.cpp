#include "blockcorrelation.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace
{

/// Threads do not pay within one block.
int onOneThread(int length)
{
    FftPlan::SetThreadCount(1);
    FftPlan::SetPlannerEffort(FftPlan::EstimateEffort);
    return length;
}

size_t spectrumLength(int length)
{
    return size_t(length) / 2 + 1;
}

} // namespace

BlockCorrelation::BlockCorrelation(int dataLength, int filterLength)
    : m_DataLength(dataLength), m_FilterLength(filterLength),
      m_BlockLength(onOneThread(ChooseBlockLength(dataLength, filterLength))),
      m_Block(size_t(m_BlockLength)), m_Spectrum(spectrumLength(m_BlockLength)),
      m_FilterSpectrum(spectrumLength(m_BlockLength)),
      m_Forward(m_BlockLength, m_Block.GetData(), m_Spectrum.GetData()),
      m_Backward(m_BlockLength, m_Spectrum.GetData(), m_Block.GetData())
{
}

int BlockCorrelation::ChooseBlockLength(int dataLength, int filterLength)
{
    constexpr std::int64_t shortest = 2048;
    std::int64_t length = 1;
    while (length < filterLength)
        length *= 2;
    // A block gives length - filterLength + 1 results; more than the data has are of no use.
    const auto cost = [&](std::int64_t candidate) {
        const auto results =
            std::min<std::int64_t>(candidate - filterLength + 1, dataLength - filterLength + 1);
        return double(candidate) * std::log2(double(candidate) + 1) / double(results);
    };
    while (length < dataLength && (length < shortest || cost(2 * length) < cost(length)))
        length *= 2;
    return int(length);
}

void BlockCorrelation::Correlate(const double* data, const double* filter, float* results)
{
    transformFilter(filter);
    const int middle = (m_FilterLength - 1) / 2;
    const int windows = m_DataLength - m_FilterLength + 1;
    const int step = m_BlockLength - m_FilterLength + 1;
    for (int start = 0; start < windows; start += std::min(step, windows - start)) {
        correlateBlock(data + start, std::min(m_BlockLength, m_DataLength - start));
        const int count = std::min(step, windows - start);
        std::transform(m_Block.GetData(), m_Block.GetData() + count, results + start + middle,
                       [](double value) { return float(value); });
    }
}

void BlockCorrelation::transformFilter(const double* filter)
{
    std::copy_n(filter, m_FilterLength, m_Block.GetData());
    std::fill(m_Block.GetData() + m_FilterLength, m_Block.GetData() + m_BlockLength, 0.0);
    m_Forward.Transform(m_Block.GetData(), m_FilterSpectrum.GetData());
    for (size_t i = 0; i < m_FilterSpectrum.GetSize(); ++i)
        m_FilterSpectrum[i] = std::conj(m_FilterSpectrum[i]) * m_Backward.GetScale();
}

void BlockCorrelation::correlateBlock(const double* data, int count)
{
    std::copy_n(data, count, m_Block.GetData());
    std::fill(m_Block.GetData() + count, m_Block.GetData() + m_BlockLength, 0.0);
    m_Forward.Transform(m_Block.GetData(), m_Spectrum.GetData());
    for (size_t i = 0; i < m_Spectrum.GetSize(); ++i) {
        // Written out: the operator looks for infinities, which takes longer than the transform.
        const std::complex<double> a = m_Spectrum[i];
        const std::complex<double> b = m_FilterSpectrum[i];
        m_Spectrum[i] = {a.real() * b.real() - a.imag() * b.imag(),
                         a.real() * b.imag() + a.imag() * b.real()};
    }
    m_Backward.Transform(m_Spectrum.GetData(), m_Block.GetData());
}
