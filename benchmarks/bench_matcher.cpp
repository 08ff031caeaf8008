#include "cutcollection.h"
#include "memoryuse.h"
#include "patternsdataobject.h"
#include "recordingfile.h"
#include "templatematcher.h"

#include <benchmark/benchmark.h>

namespace
{

constexpr int columns = 3;
constexpr int signalLength = 400;

/// The recording last asked for, as making it takes longer than searching it.
DataSet& recording(int rows)
{
    static std::unique_ptr<DataSet> data;
    if (!data || data->GetRowCount() != rows) {
        data.reset();
        data = MakeRecording(rows, columns);
    }
    return *data;
}

SignalTemplateDataObject* makeSignal(DataSet& data, int attribute, int length)
{
    auto* signal = new SignalTemplateDataObject;
    signal->SetSignal(&data, attribute, 1000, 1000 + length);
    signal->computeMean();
    signal->computeSd();
    signal->setAttributeName(QString::number(attribute));
    return signal;
}

/// Signals of all columns at half, once and double the length.
std::unique_ptr<PatternsDataObject> makePattern(DataSet& data)
{
    auto pattern = std::make_unique<PatternsDataObject>();
    for (const double factor : {0.5, 1.0, 2.0}) {
        auto* collection = new SignalTemplateCollectionDataObject(factor);
        for (int i = 0; i < columns; ++i)
            collection->AddSignal(makeSignal(data, i, int(signalLength * factor)));
        pattern->AddSignalCollection(collection);
    }
    return pattern;
}

/// With one of the matcher's measures.
template <class Measure>
void matchWith(benchmark::State& state, Measure measure)
{
    const auto rows = int(state.range(0));
    DataSet& data = recording(rows);
    const std::unique_ptr<SignalTemplateDataObject> signal(makeSignal(data, 0, signalLength));
    std::vector<float> results(static_cast<size_t>(rows));
    for (auto _ : state)
        measure(&data, signal.get(), 0, results.data(), 0, rows);
}

void matchSignal(benchmark::State& state)
{
    matchWith(state, TemplateMatcher::fastNormalizedRunningCorrelation);
}

void matchSignalExactly(benchmark::State& state)
{
    matchWith(state, TemplateMatcher::exactCorrelation);
}

void matchPattern(benchmark::State& state)
{
    const auto rows = int(state.range(0));
    DataSet& data = recording(rows);
    const auto pattern = makePattern(data);
    CutCollection cuts;
    cuts.InsertCut(0, rows, CutSegment::SEGMENT_CUT);
    for (auto _ : state) {
        TemplateMatcher matcher(&data, pattern.get(), 0,
                                TemplateMatcher::MEASURE_NORMALIZED_CORRELATION);
        RestartPeak();
        const Memory before = MemoryInUse();
        NoProgress progress;
        if (!matcher.Convolve(progress, {{QStringLiteral("1"), 1}, {QStringLiteral("2"), 2}}, &cuts,
                              CutSegment::SEGMENT_CUT))
            state.SkipWithError("the matcher refused");
        const double results = double(sizeof(float)) * pattern->GetSignalCollections().size();
        state.counters["bytes/row"] = (MemoryInUse().peak - before.resident) / rows - results;
    }
}

} // namespace

BENCHMARK(matchSignal)
    ->Arg(10'000)
    ->Arg(1'000'000)
    ->Arg(5'000'000)
    ->Arg(10'000'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(matchSignalExactly)
    ->Arg(10'000)
    ->Arg(1'000'000)
    ->Arg(5'000'000)
    ->Arg(10'000'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(matchPattern)->Arg(10'000'000)->Unit(benchmark::kMillisecond);
