#include "blockcorrelation.h"

#include "rowwindow.h"
#include "vectorclones.h"
#include <algorithm>
#include <cmath>
#include <cstdint>

namespace
{

/// The power of two that takes the least time for each value of the data.
int chooseBlockLength(int dataLength, int filterLength)
{
    constexpr std::int64_t shortest = 2048;
    std::int64_t length = 1;
    while (length < filterLength)
        length *= 2;
    const auto cost = [=](std::int64_t candidate) {
        const std::int64_t results =
            std::min<std::int64_t>(candidate, dataLength) - filterLength + 1;
        return double(candidate) * std::log2(double(candidate) + 1) / double(results);
    };
    while (length < dataLength && (length < shortest || cost(2 * length) < cost(length)))
        length *= 2;
    return int(length);
}

/// The compiler's own product of complex values looks for infinities and takes longer than the
/// transforms.
SKERRYMOOR_VECTOR_CLONES
void multiply(double* parts, const double* factors, size_t count)
{
    for (size_t i = 0; i < 2 * count; i += 2) {
        const double real = parts[i] * factors[i] - parts[i + 1] * factors[i + 1];
        const double imaginary = parts[i] * factors[i + 1] + parts[i + 1] * factors[i];
        parts[i] = real;
        parts[i + 1] = imaginary;
    }
}

} // namespace

FilterSpectrum::FilterSpectrum(const BlockFft& fft, const double* filter, int filterLength)
    : m_Factors(fft.MakeSpectrum())
{
    AlignedArray<double> values = fft.MakeValues();
    std::copy_n(filter, filterLength, values.GetData());
    fft.Forward(values.GetData(), m_Factors.GetData());
    for (size_t i = 0; i < m_Factors.GetSize(); ++i)
        m_Factors[i] = std::conj(m_Factors[i]) * fft.GetScale();
}

void FilterSpectrum::MultiplyInto(std::complex<double>* spectrum) const
{
    multiply(reinterpret_cast<double*>(spectrum),
             reinterpret_cast<const double*>(m_Factors.GetData()), m_Factors.GetSize());
}

BlockCorrelation::BlockCorrelation(int dataLength, int longestFilter)
    : m_Fft(BlockFft::OfLength(chooseBlockLength(dataLength, longestFilter))),
      m_Step(m_Fft->GetLength() - longestFilter + 1), m_Spectrum(m_Fft->MakeSpectrum()),
      m_Sums(m_Fft->MakeValues())
{
}

const double* BlockCorrelation::Correlate(double* block, const FilterSpectrum& filter)
{
    m_Fft->Forward(block, m_Spectrum.GetData());
    return transformBack(filter);
}

const double* BlockCorrelation::CorrelateSpectrum(const std::complex<double>* block,
                                                  const FilterSpectrum& filter)
{
    std::copy_n(block, m_Spectrum.GetSize(), m_Spectrum.GetData());
    return transformBack(filter);
}

const double* BlockCorrelation::transformBack(const FilterSpectrum& filter)
{
    filter.MultiplyInto(m_Spectrum.GetData());
    m_Fft->Backward(m_Spectrum.GetData(), m_Sums.GetData());
    return m_Sums.GetData();
}

void CorrelateByBlocks(RowWindow& rows, const double* filter, int filterLength,
                       const WindowSink& sink)
{
    BlockCorrelation correlation(rows.GetLength(), filterLength);
    const FilterSpectrum spectrum(correlation.GetFft(), filter, filterLength);
    AlignedArray<double> block = correlation.GetFft().MakeValues();
    const int windows = rows.GetLength() - filterLength + 1;
    for (int done = 0, count = 0; done < windows; done += count) {
        count = std::min(correlation.GetStep(), windows - done);
        const int length = count + filterLength - 1;
        FillBlock(rows.Get(done, done + length), length, block);
        sink(done, correlation.Correlate(block.GetData(), spectrum), count);
    }
}
