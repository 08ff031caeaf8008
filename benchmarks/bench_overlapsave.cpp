#include "blockcorrelation.h"
#include "recordingfile.h"
#include "rowwindow.h"

#include <benchmark/benchmark.h>
#include <fftw3.h>
#include <functional>

// What a search cannot do without: the correlation alone, by overlap and save, with nothing
// normalised. Blocks are as long as the matcher's, on one thread, and results are single.

namespace
{

constexpr int filterLength = 400;

class OverlapSave
{
public:
    using Reader = std::function<void(int from, int to, double* values)>;

    OverlapSave(int rows, const double* filter)
        : m_Rows(rows), m_Length(BlockCorrelation(rows, filterLength).GetFft().GetLength()),
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

    void Run(const Reader& read, float* results)
    {
        const int windows = m_Rows - filterLength + 1;
        const int step = m_Length - filterLength + 1;
        for (int start = 0; start < windows; start += step) {
            const int count = std::min(step, windows - start);
            const int length = count + filterLength - 1;
            read(start, start + length, m_Values);
            std::fill(m_Values + length, m_Values + m_Length, 0.0);
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

    int m_Rows;
    int m_Length;
    double* m_Values;
    fftw_complex* m_Spectrum;
    fftw_plan m_Forward;
    fftw_plan m_Backward;
    std::vector<double> m_Filter;
};

void run(benchmark::State& state, const double* filter, const OverlapSave::Reader& read)
{
    std::vector<float> results(static_cast<size_t>(state.range(0)));
    OverlapSave correlation(int(state.range(0)), filter);
    for (auto _ : state)
        correlation.Run(read, results.data());
}

// The values come from the table, as the matcher's do.
void overlapSave(benchmark::State& state)
{
    const auto data = MakeRecording(int(state.range(0)), 3);
    std::vector<double> filter(filterLength);
    ReadRows(*data, 0, 1000, 1000 + filterLength, filter.data());
    run(state, filter.data(),
        [&](int from, int to, double* values) { ReadRows(*data, 0, from, to, values); });
}

// The values are an array already.
void overlapSaveOfArray(benchmark::State& state)
{
    const auto data = MakeRecording(int(state.range(0)), 3);
    const ConstSpan<double> column = data->GetColumn(0);
    run(state, column.data() + 1000, [&](int from, int to, double* values) {
        std::copy(column.begin() + from, column.begin() + to, values);
    });
}

} // namespace

BENCHMARK(overlapSave)
    ->Arg(1'000'000)
    ->Arg(5'000'000)
    ->Arg(10'000'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(overlapSaveOfArray)
    ->Arg(1'000'000)
    ->Arg(5'000'000)
    ->Arg(10'000'000)
    ->Unit(benchmark::kMillisecond);
