#include "columnarithmetic.h"
#include "derivative.h"
#include "energy.h"
#include "movingaverage.h"
#include "normalize.h"
#include "recordingfile.h"
#include "rotation.h"
#include "tilt.h"
#include "vedba.h"
#include <benchmark/benchmark.h>

namespace
{

constexpr int columns = 9;
constexpr VectorAttributes acceleration{0, 1, 2};

// Making millions of rows takes longer than most operations, so they are made once per size.
DataSet& recordingOf(int rows)
{
    static std::unique_ptr<DataSet> recording;
    if (!recording || recording->GetRowCount() != rows) {
        recording.reset();
        recording = MakeRecording(rows, columns);
    }
    return *recording;
}

std::vector<DataColumn> single(DataColumn column)
{
    std::vector<DataColumn> columnsOfOne(1);
    columnsOfOne.front() = std::move(column);
    return columnsOfOne;
}

// What a user waits for: the columns, their place in the table and the ranges.
template <class Derive>
void appendDerived(benchmark::State& state, const Derive& derive)
{
    DataSet& data = recordingOf(int(state.range(0)));
    for (auto _ : state) {
        for (DataColumn& column : derive(data))
            data.AddColumn(QStringLiteral("derived"), ATTRIBUTE_OTHER, std::move(column));
        data.ComputeRanges();
        state.PauseTiming();
        while (data.GetAttributeCount() > columns)
            data.RemoveAttribute(columns);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void firstColumn(benchmark::State& state)
{
    const auto rows = int(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto data = MakeRecording(rows, columns);
        // As after an import.
        data->ComputeRanges();
        state.ResumeTiming();
        data->AddColumn(QStringLiteral("VeDBA"), ATTRIBUTE_OTHER, Vedba(*data, acceleration));
        data->ComputeRanges();
        state.PauseTiming();
        data.reset();
        state.ResumeTiming();
    }
}

void vedba(benchmark::State& state)
{
    appendDerived(state, [](DataSet& data) { return single(Vedba(data, acceleration)); });
}

void pitchAndRoll(benchmark::State& state)
{
    appendDerived(state, [](DataSet& data) { return PitchAndRoll(data, acceleration); });
}

void normalize(benchmark::State& state)
{
    appendDerived(state, [](DataSet& data) { return single(Normalize(data.GetColumn(0))); });
}

void normalizeVector(benchmark::State& state)
{
    appendDerived(state, [](DataSet& data) { return NormalizeVector(data, acceleration); });
}

void rotateVector(benchmark::State& state)
{
    appendDerived(state, [](DataSet& data) { return RotateVector(data, acceleration, 3, 4); });
}

void basicFunction(benchmark::State& state)
{
    appendDerived(state,
                  [](DataSet& data) { return single(BasicFunction(data, 0, OPERATOR_DIVIDE, 1)); });
}

void derivative(benchmark::State& state)
{
    DataSet& data = recordingOf(int(state.range(0)));
    for (auto _ : state) {
        DataColumn differences = ForwardDifferences(data, 0);
        data.AddAttribute(QStringLiteral("derived"), ATTRIBUTE_OTHER);
        AppendDerivative(data, std::move(differences));
        data.ComputeRanges();
        state.PauseTiming();
        data.GetRow(0)->RemoveValue(columns + 1);
        data.RemoveAttribute(columns);
        state.ResumeTiming();
    }
}

// The computation alone: its time per row must not grow with the window.
template <DataColumn (*Compute)(ConstSpan<double>, int)>
void window(benchmark::State& state)
{
    const ConstSpan<double> column = recordingOf(int(state.range(0))).GetColumn(0);
    for (auto _ : state)
        benchmark::DoNotOptimize(Compute(column, int(state.range(1))).data());
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(1'000'000)->Arg(10'000'000)->Unit(benchmark::kMillisecond);
}

void windows(benchmark::internal::Benchmark* benchmark)
{
    for (const int rows : {1'000'000, 10'000'000})
        benchmark->Args({rows, 2})->Args({rows, 32})->Args({rows, 2'000})->Args({rows, 200'000});
    benchmark->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(firstColumn)->Apply(sizes)->Iterations(1);
BENCHMARK(vedba)->Apply(sizes);
BENCHMARK(pitchAndRoll)->Apply(sizes);
BENCHMARK(normalize)->Apply(sizes);
BENCHMARK(normalizeVector)->Apply(sizes);
BENCHMARK(rotateVector)->Apply(sizes);
BENCHMARK(basicFunction)->Apply(sizes);
BENCHMARK(derivative)->Apply(sizes);
BENCHMARK_TEMPLATE(window, MovingAverage)->Apply(windows)->Name("movingAverage");
BENCHMARK_TEMPLATE(window, Energy)->Apply(windows)->Name("energy");
