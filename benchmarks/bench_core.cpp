#include "dataset.h"
#include "fileimporter.h"
#include "recordingfile.h"
#include <benchmark/benchmark.h>
#include <malloc.h>

namespace
{

constexpr int columns = 9;

struct Memory {
    double resident = 0.0;
    double peak = 0.0;
};

// Of this process, in bytes, from the kernel's own account.
Memory memoryInUse()
{
    QFile status(QStringLiteral("/proc/self/status"));
    Memory memory;
    if (!status.open(QIODevice::ReadOnly))
        return memory;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const double bytes =
            line.mid(line.indexOf(':') + 1).simplified().split(' ')[0].toDouble() * 1024;
        if (line.startsWith("VmRSS:"))
            memory.resident = bytes;
        if (line.startsWith("VmHWM:"))
            memory.peak = bytes;
    }
    return memory;
}

// Gives freed memory back, so that the peak from here on is that of the next step alone.
void restartPeak()
{
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

void importText(benchmark::State& state)
{
    const auto rows = int(state.range(0));
    const RecordingFile recording(rows, columns);
    for (auto _ : state) {
        state.PauseTiming();
        restartPeak();
        const Memory before = memoryInUse();
        state.ResumeTiming();
        FileImporter importer(nullptr, recording.Path());
        if (!importer.Read())
            state.SkipWithError("the recording was not read");
        state.PauseTiming();
        const Memory after = memoryInUse();
        const std::unique_ptr<DataSet> data(importer.GetDataSet());
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
