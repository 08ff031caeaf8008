#include "blockcorrelation.h"

#include "blocktransform.h"
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace
{

using Spectrum = std::vector<std::complex<double>>;

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

/// The filter's conjugate spectrum, with the factor that the way back leaves out.
Spectrum transformFilter(BlockTransform& transform, const double* filter, int length)
{
    transform.SetValues(filter, length);
    transform.Forward();
    Spectrum result(transform.GetSpectrum().GetSize());
    for (size_t i = 0; i < result.size(); ++i)
        result[i] = std::conj(transform.GetSpectrum()[i]) * transform.GetScale();
    return result;
}

void multiply(AlignedArray<std::complex<double>>& spectrum, const Spectrum& filter)
{
    for (size_t i = 0; i < filter.size(); ++i) {
        // Written out: the operator looks for infinities, which takes longer than the transform.
        const std::complex<double> a = spectrum[i];
        const std::complex<double> b = filter[i];
        spectrum[i] = {a.real() * b.real() - a.imag() * b.imag(),
                       a.real() * b.imag() + a.imag() * b.real()};
    }
}

} // namespace

void CorrelateByBlocks(const double* data, int dataLength, const double* filter, int filterLength,
                       float* results)
{
    const auto transform = BlockTransform::OfLength(chooseBlockLength(dataLength, filterLength));
    const Spectrum filterSpectrum = transformFilter(*transform, filter, filterLength);
    const int windows = dataLength - filterLength + 1;
    const int step = transform->GetLength() - filterLength + 1;
    float* middle = results + (filterLength - 1) / 2;
    for (int done = 0, count = 0; done < windows; done += count) {
        count = std::min(step, windows - done);
        transform->SetValues(data + done, count + filterLength - 1);
        transform->Forward();
        multiply(transform->GetSpectrum(), filterSpectrum);
        transform->Backward();
        std::transform(transform->GetValues().GetData(), transform->GetValues().GetData() + count,
                       middle + done, [](double value) { return float(value); });
    }
}
