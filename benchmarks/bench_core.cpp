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
        const double count = data->GetRowCount();
        state.counters["bytes/row"] = (after.resident - before.resident) / count;
        state.counters["peak bytes/row"] = (after.peak - before.resident) / count;
        state.counters["allocated/row"] = (after.allocated - before.allocated) / count;
        state.ResumeTiming();
    }
}

// With values changed in so many of the columns.
void computeRanges(benchmark::State& state)
{
    const std::unique_ptr<DataSet> data = MakeRecording(int(state.range(0)), columns);
    for (auto _ : state) {
        state.PauseTiming();
        for (int column = 0; column < int(state.range(1)); ++column)
            data->GetRow(0)->SetValue(column, data->GetValue(0, column));
        state.ResumeTiming();
        data->ComputeRanges();
    }
}

} // namespace

BENCHMARK(importText)
    ->Arg(1'000'000)
    ->Arg(5'000'000)
    ->Arg(10'000'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(computeRanges)
    ->ArgNames({"rows", "changed"})
    ->ArgsProduct({{1'000'000, 10'000'000}, {0, 1, columns}})
    ->Unit(benchmark::kMillisecond);
