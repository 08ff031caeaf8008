#include "matchextraction.h"
#include "resultreduction.h"
#include "stepscale.h"
#include <benchmark/benchmark.h>
#include <random>

namespace
{

constexpr int steps = 10'000'000;
constexpr int factors = 3;

/// The confidences of a search over a long recording.
SearchResults longResults()
{
    static std::vector<std::vector<float>> values;
    static std::vector<float*> rows;
    if (values.empty()) {
        std::mt19937 random(1);
        std::uniform_real_distribution<float> confidence(0, 1);
        values.resize(factors, std::vector<float>(steps));
        for (auto& row : values) {
            std::generate(row.begin(), row.end(), [&] { return confidence(random); });
            rows.push_back(row.data());
        }
    }
    return {rows.data(), factors, steps};
}

// The argument is the threshold in percent.
void BM_ComputeCenterPoints(benchmark::State& state)
{
    const SearchResults results = longResults();
    const float threshold = float(state.range(0)) / 100;
    for (auto _ : state)
        benchmark::DoNotOptimize(computeCenterPoints(results, {200, 400, 800}, threshold));
}
BENCHMARK(BM_ComputeCenterPoints)->Arg(0)->Arg(80)->Arg(100)->Unit(benchmark::kMillisecond);

void BM_ComputePositionValueList(benchmark::State& state)
{
    const SearchResults results = longResults();
    for (auto _ : state)
        benchmark::DoNotOptimize(computePositionValueList(results, StepScale::OverAll(steps, 800)));
}
BENCHMARK(BM_ComputePositionValueList)->Unit(benchmark::kMillisecond);

} // namespace
