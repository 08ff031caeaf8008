#include "dataset.h"
#include "fileimporter.h"
#include "memoryuse.h"
#include "recordingfile.h"
#include <benchmark/benchmark.h>

namespace
{

constexpr int columns = 9;

void importText(benchmark::State& state)
{
    const auto rows = int(state.range(0));
    const RecordingFile recording(rows, columns);
    for (auto _ : state) {
        state.PauseTiming();
        RestartPeak();
        const Memory before = MemoryInUse();
        state.ResumeTiming();
        FileImporter importer(nullptr, recording.Path());
        if (!importer.Read())
            state.SkipWithError("the recording was not read");
        state.PauseTiming();
        const Memory after = MemoryInUse();
        const std::unique_ptr<DataSet> data = importer.TakeDataSet();
        state.counters["bytes/row"] = (after.resident - before.resident) / data->GetRowCount();
        state.counters["peak bytes/row"] = (after.peak - before.resident) / data->GetRowCount();
        state.ResumeTiming();
    }
}

void computeRanges(benchmark::State& state)
{
    const std::unique_ptr<DataSet> data = MakeRecording(int(state.range(0)), columns);
    for (auto _ : state)
        data->ComputeRanges();
}

} // namespace

BENCHMARK(importText)
    ->Arg(1'000'000)
    ->Arg(5'000'000)
    ->Arg(10'000'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(computeRanges)->Arg(1'000'000)->Arg(10'000'000)->Unit(benchmark::kMillisecond);
