#include "blockcorrelation.h"

#include "blocktransform.h"
#include "rowwindow.h"
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

/// The compiler's own product looks for infinities and takes longer than the transforms.
void multiply(std::complex<double>* values, const std::vector<std::complex<double>>& factors)
{
    auto* parts = reinterpret_cast<double*>(values);
    const auto* others = reinterpret_cast<const double*>(factors.data());
    for (size_t i = 0; i < 2 * factors.size(); i += 2) {
        const double real = parts[i] * others[i] - parts[i + 1] * others[i + 1];
        const double imaginary = parts[i] * others[i + 1] + parts[i + 1] * others[i];
        parts[i] = real;
        parts[i + 1] = imaginary;
    }
}

} // namespace

BlockCorrelation::BlockCorrelation(int dataLength, const double* filter, int filterLength)
    : m_FilterLength(filterLength),
      m_Transform(BlockTransform::OfLength(chooseBlockLength(dataLength, filterLength)))
{
    m_Transform->Forward(filter, filterLength);
    const AlignedArray<std::complex<double>>& spectrum = m_Transform->GetSpectrum();
    // The conjugate, with the factor that the way back leaves out.
    for (size_t i = 0; i < spectrum.GetSize(); ++i)
        m_FilterSpectrum.push_back(std::conj(spectrum[i]) * m_Transform->GetScale());
}

int BlockCorrelation::GetStep() const
{
    return m_Transform->GetLength() - m_FilterLength + 1;
}

const double* BlockCorrelation::Correlate(const double* data, int count)
{
    m_Transform->Forward(data, count + m_FilterLength - 1);
    multiply(m_Transform->GetSpectrum().GetData(), m_FilterSpectrum);
    return m_Transform->Backward();
}

void CorrelateByBlocks(RowWindow& rows, const double* filter, int filterLength, float* results)
{
    BlockCorrelation correlation(rows.GetLength(), filter, filterLength);
    const int windows = rows.GetLength() - filterLength + 1;
    float* middle = results + (filterLength - 1) / 2;
    for (int done = 0, count = 0; done < windows; done += count) {
        count = std::min(correlation.GetStep(), windows - done);
        const double* sums =
            correlation.Correlate(rows.Get(done, done + count + filterLength - 1), count);
        std::transform(sums, sums + count, middle + done, [](double sum) { return float(sum); });
    }
}
