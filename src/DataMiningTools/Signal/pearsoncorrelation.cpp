#include "pearsoncorrelation.h"

#include "rowwindow.h"
#include "vectorclones.h"
#include "windowenergies.h"
#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{

/// The signal without its mean, of length 1; empty when all its values are the same.
std::vector<double> makeFilter(const double* signal, int length)
{
    const auto [lowest, highest] = std::minmax_element(signal, signal + length);
    if (*lowest == *highest)
        return {};
    std::vector<double> filter(signal, signal + length);
    // Once more for what rounding has left of a mean far from 0.
    for (int pass = 0; pass < 2; ++pass) {
        const double mean = std::accumulate(filter.begin(), filter.end(), 0.0) / length;
        std::for_each(filter.begin(), filter.end(), [=](double& value) { value -= mean; });
    }
    const double norm =
        std::sqrt(std::inner_product(filter.begin(), filter.end(), filter.begin(), 0.0));
    std::for_each(filter.begin(), filter.end(), [=](double& value) { value /= norm; });
    return filter;
}

/// About the middle of the values.
double findOffset(const double* values, int count)
{
    constexpr int most = 64;
    const int step = std::max(count / most, 1);
    double sum = 0.0;
    int taken = 0;
    for (int i = 0; i < count; i += step, ++taken)
        sum += values[i];
    return sum / taken;
}

/// Copies values without an offset, which the filter does not see, and returns their energy.
SKERRYMOOR_VECTOR_CLONES
double centre(const double* values, int count, double offset, double* block)
{
    constexpr int lanes = 16;
    double energies[lanes] = {};
    int i = 0;
    for (; i + lanes <= count; i += lanes) {
        for (int lane = 0; lane < lanes; ++lane) {
            block[i + lane] = values[i + lane] - offset;
            energies[lane] += block[i + lane] * block[i + lane];
        }
    }
    for (; i < count; ++i) {
        block[i] = values[i] - offset;
        energies[0] += block[i] * block[i];
    }
    return std::accumulate(energies, energies + lanes, 0.0);
}

/// Returns how many windows vary, but less than lowest.
SKERRYMOOR_VECTOR_CLONES
int normalize(const double* sums, const double* energies, int count, double lowest,
              double* correlations)
{
    std::int64_t faint = 0;
    for (int i = 0; i < count; ++i) {
        const double ratio = sums[i] / std::sqrt(energies[i]);
        const double held = ratio > 1.0 ? 1.0 : ratio < -1.0 ? -1.0 : ratio;
        correlations[i] = energies[i] > 0.0 ? held : 0.0;
        faint += energies[i] > 0.0 && energies[i] < lowest;
    }
    return int(faint);
}

double correlateDirectly(const double* window, const std::vector<double>& filter, double energy)
{
    double sum = 0.0;
    for (size_t j = 0; j < filter.size(); ++j)
        sum += (window[j] - window[0]) * filter[j];
    return std::clamp(sum / std::sqrt(energy), -1.0, 1.0);
}

class PearsonCorrelation
{
public:
    PearsonCorrelation(int rows, std::vector<double> filter)
        : m_Filter(std::move(filter)), m_Correlation(rows, int(m_Filter.size())),
          m_Spectrum(m_Correlation.GetFft(), m_Filter.data(), int(m_Filter.size())),
          m_Block(m_Correlation.GetFft().MakeValues()),
          m_Energies(int(m_Filter.size()), m_Correlation.GetStep()),
          m_Correlations(size_t(m_Correlation.GetStep()))
    {
    }

    int GetStep() const { return m_Correlation.GetStep(); }

    /// The correlations of the first count windows of the values.
    const double* Correlate(const double* values, int count)
    {
        const int length = count + int(m_Filter.size()) - 1;
        const double blockEnergy =
            centre(values, length, findOffset(values, length), m_Block.GetData());
        std::fill(m_Block.GetData() + length, m_Block.GetData() + m_Block.GetSize(), 0.0);
        const double* sums = m_Correlation.Correlate(m_Block.GetData(), m_Spectrum);
        const double* energies = m_Energies.Compute(values, count);
        // The transforms round relative to the whole block.
        const double lowest = blockEnergy * 1e-12;
        if (normalize(sums, energies, count, lowest, m_Correlations.data()) > 0 &&
            m_Filter.size() <= LongestDirect)
            correlateFaint(values, energies, count, lowest);
        return m_Correlations.data();
    }

private:
    void correlateFaint(const double* values, const double* energies, int count, double lowest)
    {
        for (int i = 0; i < count; ++i) {
            if (energies[i] > 0.0 && energies[i] < lowest)
                m_Correlations[size_t(i)] = correlateDirectly(values + i, m_Filter, energies[i]);
        }
    }

    std::vector<double> m_Filter;
    BlockCorrelation m_Correlation;
    FilterSpectrum m_Spectrum;
    AlignedArray<double> m_Block;
    WindowEnergies m_Energies;
    std::vector<double> m_Correlations;
};

void sinkZeros(int windows, const WindowSink& sink)
{
    constexpr int most = 4096;
    const double zeros[most] = {};
    for (int done = 0; done < windows; done += most)
        sink(done, zeros, std::min(windows - done, most));
}

} // namespace

void CorrelatePearson(RowWindow& rows, const double* signal, int length, const WindowSink& sink)
{
    const int windows = rows.GetLength() - length + 1;
    std::vector<double> filter = makeFilter(signal, length);
    if (filter.empty()) {
        sinkZeros(windows, sink);
        return;
    }
    PearsonCorrelation correlation(rows.GetLength(), std::move(filter));
    for (int done = 0, count = 0; done < windows; done += count) {
        count = std::min(correlation.GetStep(), windows - done);
        sink(done, correlation.Correlate(rows.Get(done, done + count + length - 1), count), count);
    }
}
