#include "cutcollection.h"
#include "dataset.h"
#include "localvarianceextractor.h"
#include "persistenceextractor.h"
#include "pipextractor.h"
#include "simplecuts.h"
#include <benchmark/benchmark.h>
#include <chrono>
#include <cmath>
#include <random>

namespace
{

enum Shape { WAVES, NOISE, WALK, FLAT };

// Columns of one shape, from a fixed seed: a swell with jitter, noise, a random walk, zeros.
std::vector<double> makeValues(int rows, Shape shape)
{
    std::mt19937 random(1);
    std::normal_distribution<double> jitter;
    std::vector<double> values(size_t(rows), 0.0);
    double walk = 0.0;
    for (size_t i = 0; i < values.size() && shape != FLAT; ++i) {
        const double noise = jitter(random);
        walk += noise;
        values[i] = shape == WAVES   ? 40.0 * std::sin(double(i) / 5000.0) + 0.1 * noise
                    : shape == NOISE ? noise
                                     : walk;
    }
    return values;
}

std::unique_ptr<DataSet> makeColumns(int rows, int columns, Shape shape)
{
    auto data = std::make_unique<DataSet>();
    const std::vector<double> values = makeValues(rows, shape);
    for (int i = 0; i < columns; ++i)
        data->AddColumn(QString::number(i), ATTRIBUTE_OTHER, DataColumn(values));
    return data;
}

void persistence(benchmark::State& state)
{
    const std::vector<double> values = makeValues(int(state.range(0)), Shape(state.range(1)));
    const std::vector<float> data(values.begin(), values.end());
    for (auto _ : state) {
        PersistenceExtractor extractor;
        extractor.extract(data);
        state.counters["pairs"] = double(extractor.getPairs(0.0F).size());
    }
}

void importantPoints(benchmark::State& state)
{
    const auto data = makeColumns(int(state.range(0)), 1, Shape(state.range(1)));
    PIPExtractor extractor;
    extractor.setDataSet(data.get());
    extractor.setMeasure(int(state.range(2)));
    for (auto _ : state) {
        extractor.extract(0, 1000, 0.0, PIPExtractor::NUMBER_PARTITIONS);
        state.counters["segments"] = double(extractor.getSegments().size());
    }
}

void sharpTransitions(benchmark::State& state)
{
    const auto data = makeColumns(int(state.range(0)), 3, NOISE);
    LocalVarianceParameters parameters;
    parameters.m_Y = 1;
    parameters.m_Z = 2;
    LocalVarianceExtractor extractor;
    extractor.setDataSet(data.get());
    for (auto _ : state) {
        extractor.extract(parameters);
        state.counters["cuts"] = double(extractor.getIndices().size());
    }
}

enum Way { ONE_BY_ONE, AT_ONCE };

void insertCuts(CutCollection& cuts, const std::vector<int>& rows, Way way)
{
    if (way == AT_ONCE) {
        cuts.InsertCutsAt(rows, CutSegment::SEGMENT_CUT);
        return;
    }
    for (const int row : rows)
        cuts.InsertCut(row, CutSegment::SEGMENT_CUT);
}

void cutRanges(CutCollection& cuts, const std::vector<PIPSegment>& segments, Way way)
{
    std::vector<RowSpan> ranges;
    for (const PIPSegment& segment : segments)
        ranges.push_back({segment.m_Start, segment.m_End});
    if (way == AT_ONCE) {
        cuts.InsertRanges(ranges, CutSegment::SEGMENT_CUT);
        return;
    }
    for (const RowSpan& range : ranges)
        cuts.InsertCut(range.m_From, range.m_To, CutSegment::SEGMENT_CUT);
}

// All splits there are.
void importantPointsByDistance(benchmark::State& state)
{
    const auto data = makeColumns(int(state.range(0)), 1, Shape(state.range(1)));
    PIPExtractor extractor;
    extractor.setDataSet(data.get());
    extractor.setMeasure(int(state.range(2)));
    for (auto _ : state) {
        extractor.extract(0, 0, 0.0, PIPExtractor::MINIMUM_DISTANCE);
        CutCollection cuts;
        cuts.InsertCut(0, data->GetRowCount(), CutSegment::SEGMENT_CUT);
        const auto start = std::chrono::steady_clock::now();
        cutRanges(cuts, extractor.getSegments(), Way(state.range(3)));
        const std::chrono::duration<double> cutting = std::chrono::steady_clock::now() - start;
        state.counters["cutting_s"] = cutting.count();
        state.counters["segments"] = cuts.GetSegmentCount();
    }
}

void insertPeriodicCuts(benchmark::State& state)
{
    const auto data = makeColumns(int(state.range(0)) * 10, 1, FLAT);
    for (auto _ : state) {
        CutCollection cuts;
        cuts.InsertCut(0, data->GetRowCount(), CutSegment::SEGMENT_CUT);
        insertCuts(cuts, PeriodicCuts(*data, {10}), Way(state.range(1)));
        state.counters["segments"] = cuts.GetSegmentCount();
    }
}

// Extrema come by their height, all over the recording.
void insertExtrema(benchmark::State& state)
{
    const auto data = makeColumns(int(state.range(0)), 1, NOISE);
    std::vector<int> rows = MinimaMaximaCuts(*data, {});
    rows.resize(std::min(rows.size(), size_t(state.range(1))));
    for (auto _ : state) {
        CutCollection cuts;
        cuts.InsertCut(0, data->GetRowCount(), CutSegment::SEGMENT_CUT);
        insertCuts(cuts, rows, Way(state.range(2)));
        state.counters["segments"] = cuts.GetSegmentCount();
    }
}

} // namespace

BENCHMARK(persistence)
    ->ArgsProduct({{10'000'000}, {WAVES, NOISE, WALK}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(importantPoints)
    ->ArgsProduct({{1'000'000}, {WAVES, NOISE, WALK, FLAT}, {0, 1, 2}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(sharpTransitions)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(importantPointsByDistance)
    ->ArgsProduct({{1'000'000}, {WAVES, NOISE, WALK}, {0, 1, 2}, {ONE_BY_ONE, AT_ONCE}})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(insertPeriodicCuts)
    ->ArgsProduct({{100'000}, {ONE_BY_ONE, AT_ONCE}})
    ->Unit(benchmark::kMillisecond);
// One by one the time grows with the square of the cuts: two minutes for all of them.
BENCHMARK(insertExtrema)
    ->Args({1'000'000, 50'000, ONE_BY_ONE})
    ->Args({1'000'000, 50'000, AT_ONCE})
    ->Args({1'000'000, 500'000, ONE_BY_ONE})
    ->Args({1'000'000, 500'000, AT_ONCE})
    ->Unit(benchmark::kMillisecond);
