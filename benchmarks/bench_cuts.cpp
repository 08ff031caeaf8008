#include "cutcollection.h"
#include "labelcollection.h"
#include "patternsdataobject.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <memory>
#include <random>

namespace
{

constexpr int rowsPerSegment = 100;

/// Segments of equal length; every third is labelled and every third a search result.
std::unique_ptr<CutCollection> makeCuts(int count)
{
    auto cuts = std::make_unique<CutCollection>();
    cuts->InsertCut(0, count * rowsPerSegment, CutSegment::SEGMENT_CUT);
    for (int i = 1; i < count; ++i)
        cuts->InsertCut(i * rowsPerSegment, CutSegment::SEGMENT_STATE(i % 3));
    return cuts;
}

std::vector<CutSegment*> shuffledSegments(const CutCollection& cuts)
{
    std::vector<CutSegment*> segments;
    for (int i = 0; i < cuts.GetSegmentCount(); ++i)
        segments.push_back(cuts.GetSegment(i));
    std::shuffle(segments.begin(), segments.end(), std::mt19937(1));
    return segments;
}

/// A pattern of one signal of some rows.
std::unique_ptr<PatternsDataObject> makePattern(int width)
{
    auto* signal = new SignalTemplateDataObject;
    signal->SetSignal(std::vector<double>(size_t(width)).data(), width);
    auto* collection = new SignalTemplateCollectionDataObject;
    collection->AddSignal(signal);
    auto pattern = std::make_unique<PatternsDataObject>();
    pattern->AddSignalCollection(collection);
    return pattern;
}

void insertHits(benchmark::State& state)
{
    const int rows = 10'000'000;
    const int distance = rows / int(state.range(0));
    const auto pattern = makePattern(distance / 2);
    const auto hits = std::make_unique<bool[]>(rows);
    for (int i = distance / 2; i < rows; i += distance)
        hits[size_t(i)] = true;
    bool* all[] = {hits.get()};
    for (auto _ : state) {
        CutCollection cuts;
        cuts.InsertCut(0, rows, CutSegment::SEGMENT_CUT);
        cuts.InsertCuts(all, 1, rows, pattern.get(), 0, {});
        state.counters["segments"] = cuts.GetSegmentCount();
    }
}

void findSegment(benchmark::State& state)
{
    const auto cuts = makeCuts(int(state.range(0)));
    const int last = cuts->GetSegmentCount() - 1;
    const int row = last * rowsPerSegment + 1;
    // One segment behind all others in every few: no block of them can be passed over.
    for (int i = 0; state.range(1) && i < last; i += 100) {
        cuts->GetSegment(i)->SetFrom(row + 1);
        cuts->GetSegment(i)->SetTo(row + 2);
    }
    int index = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(cuts->FindSegment(row, index));
}

/// One segment is cut in two, the other ones are found again, as after every click.
void cutAndFind(benchmark::State& state)
{
    const auto cuts = makeCuts(int(state.range(0)));
    int row = 1;
    int index = 0;
    for (auto _ : state) {
        cuts->InsertCut(row += rowsPerSegment, CutSegment::SEGMENT_CUT);
        benchmark::DoNotOptimize(
            cuts->FindSegment(int(state.range(0)) * rowsPerSegment - 1, index));
    }
}

void mergeLabels(benchmark::State& state)
{
    const auto cuts = makeCuts(int(state.range(0)));
    for (auto _ : state)
        cuts->MergeLabels(3 * rowsPerSegment);
}

void mergeCuts(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto cuts = makeCuts(int(state.range(0)));
        state.ResumeTiming();
        cuts->MergeCuts(0, int(state.range(0)) * rowsPerSegment);
        state.PauseTiming();
        cuts.reset();
        state.ResumeTiming();
    }
}

void removeResults(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto cuts = makeCuts(int(state.range(0)));
        // Neighbours of a result take it only where they are labelled.
        for (int i = 0; i < cuts->GetSegmentCount(); ++i) {
            if (cuts->GetSegment(i)->GetState() == CutSegment::SEGMENT_CUT)
                cuts->GetSegment(i)->SetState(CutSegment::SEGMENT_LABELED);
            else if (i % 3 == 0)
                cuts->GetSegment(i)->SetState(CutSegment::SEGMENT_CUT);
        }
        state.ResumeTiming();
        cuts->RemoveSegments(CutSegment::SEGMENT_RESULT);
        state.PauseTiming();
        state.counters["left"] = cuts->GetSegmentCount();
        cuts.reset();
        state.ResumeTiming();
    }
}

void removeInAnyOrder(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto cuts = makeCuts(int(state.range(0)));
        for (CutSegment* segment : shuffledSegments(*cuts))
            segment->SetState(CutSegment::SEGMENT_CUT);
        const auto segments = shuffledSegments(*cuts);
        state.ResumeTiming();
        for (CutSegment* segment : segments)
            cuts->RemoveSegment(segment);
        state.PauseTiming();
        cuts.reset();
        state.ResumeTiming();
    }
}

/// Instances of the last of some behaviours leave one by one.
void removeLabels(benchmark::State& state)
{
    const auto cuts = makeCuts(int(state.range(0)));
    const auto segments = shuffledSegments(*cuts);
    for (auto _ : state) {
        state.PauseTiming();
        LabelCollection labels;
        for (int i = 0; i < 4; ++i) {
            labels.AddLabel(new BehaviorLabel);
            for (int k = 0; i < 3 && k < int(state.range(0)); ++k)
                labels.GetLabel(i)->AddLabelQuietly(new LabelInstance);
        }
        for (int i = 0; i < cuts->GetSegmentCount(); ++i)
            labels.GetLabel(3)->AddLabelQuietly(new LabelInstance(cuts->GetSegment(i)));
        state.ResumeTiming();
        for (CutSegment* segment : segments)
            labels.RemoveCut(segment);
    }
}

} // namespace

BENCHMARK(insertHits)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(findSegment)
    ->ArgNames({"segments", "scattered"})
    ->ArgsProduct({{100'000}, {0, 1}})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(cutAndFind)->Arg(100'000)->Iterations(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(mergeLabels)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(mergeCuts)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(removeResults)->Arg(30'000)->Arg(300'000)->Unit(benchmark::kMillisecond);
BENCHMARK(removeInAnyOrder)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(removeLabels)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
