#include "blockcorrelation.h"
#include "dataset.h"
#include "recordingfile.h"

#include <benchmark/benchmark.h>
#include <fftw3.h>

// What a search cannot do without: the correlation alone, by overlap and save, with nothing
// normalised. Blocks are as long as the matcher's, on one thread, and results are single.

namespace
{

constexpr int filterLength = 400;

class OverlapSave
{
public:
    OverlapSave(ConstSpan<double> rows, const double* filter)
        : m_Rows(rows), m_Length(BlockCorrelation(rows.size(), filterLength).GetFft().GetLength()),
          m_Values(fftw_alloc_real(size_t(m_Length))),
          m_Spectrum(fftw_alloc_complex(size_t(m_Length) / 2 + 1)),
          m_Forward(fftw_plan_dft_r2c_1d(m_Length, m_Values, m_Spectrum, FFTW_ESTIMATE)),
          m_Backward(fftw_plan_dft_c2r_1d(m_Length, m_Spectrum, m_Values, FFTW_ESTIMATE))
    {
        std::fill(std::copy_n(filter, filterLength, m_Values), m_Values + m_Length, 0.0);
        fftw_execute(m_Forward);
        for (int i = 0; i <= m_Length / 2; ++i)
            m_Filter.insert(m_Filter.end(),
                            {m_Spectrum[i][0] / m_Length, -m_Spectrum[i][1] / m_Length});
    }
    OverlapSave(const OverlapSave&) = delete;
    OverlapSave& operator=(const OverlapSave&) = delete;
    ~OverlapSave()
    {
        fftw_destroy_plan(m_Forward);
        fftw_destroy_plan(m_Backward);
        fftw_free(m_Values);
        fftw_free(m_Spectrum);
    }

    void Run(float* results)
    {
        const int windows = m_Rows.size() - filterLength + 1;
        const int step = m_Length - filterLength + 1;
        for (int start = 0; start < windows; start += step) {
            const int count = std::min(step, windows - start);
            const int length = count + filterLength - 1;
            std::fill(std::copy_n(m_Rows.data() + start, length, m_Values), m_Values + m_Length,
                      0.0);
            fftw_execute(m_Forward);
            multiply();
            fftw_execute(m_Backward);
            for (int i = 0; i < count; ++i)
                results[start + i] = float(m_Values[i]);
        }
    }

private:
    void multiply()
    {
        double* values = *m_Spectrum;
        for (size_t i = 0; i < m_Filter.size(); i += 2) {
            const double real = values[i] * m_Filter[i] - values[i + 1] * m_Filter[i + 1];
            values[i + 1] = values[i] * m_Filter[i + 1] + values[i + 1] * m_Filter[i];
            values[i] = real;
        }
    }

    ConstSpan<double> m_Rows;
    int m_Length;
    double* m_Values;
    fftw_complex* m_Spectrum;
    fftw_plan m_Forward;
    fftw_plan m_Backward;
    std::vector<double> m_Filter;
};

void overlapSave(benchmark::State& state)
{
    const auto data = MakeRecording(int(state.range(0)), 3);
    const ConstSpan<double> rows = data->GetColumn(0);
    std::vector<float> results(static_cast<size_t>(rows.size()));
    OverlapSave correlation(rows, rows.data() + 1000);
    for (auto _ : state)
        correlation.Run(results.data());
}

} // namespace

BENCHMARK(overlapSave)
    ->Arg(1'000'000)
    ->Arg(5'000'000)
    ->Arg(10'000'000)
    ->Unit(benchmark::kMillisecond);
