#include "cutcollection.h"
#include "matchextraction.h"
#include "patternsdataobject.h"
#include "recordingfile.h"
#include "resultfilterpage.h"
#include "resultreduction.h"
#include "stepscale.h"
#include <QCoreApplication>
#include <QSlider>
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

// A template of three attributes at three frequency factors.
std::unique_ptr<PatternsDataObject> makePattern(const DataSet& data)
{
    auto pattern = std::make_unique<PatternsDataObject>();
    for (const int length : {200, 400, 800}) {
        auto* collection = new SignalTemplateCollectionDataObject(length / 200.0);
        for (int attribute = 0; attribute < data.GetAttributeCount(); ++attribute) {
            auto* signal = new SignalTemplateDataObject;
            signal->SetSignal(std::vector<double>(size_t(length), 1.0).data(), length);
            signal->setAttributeName(data.GetAttributeName(attribute));
            collection->AddSignal(signal);
        }
        pattern->AddSignalCollection(collection);
    }
    return pattern;
}

// From the move of the slider to the repainted page.
void BM_MoveThreshold(benchmark::State& state)
{
    const SearchResults results = longResults();
    const auto data = MakeRecording(steps, 3);
    data->SetAttributeNames(
        new QStringList{QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Z")});
    data->ComputeRanges();
    const auto pattern = makePattern(*data);
    QHash<QString, int> attributes;
    for (int i = 0; i < data->GetAttributeCount(); ++i)
        attributes.insert(data->GetAttributeName(i), i);
    const QList<int> nothing;
    CutCollection cuts;
    cuts.InsertCut(0, steps, CutSegment::SEGMENT_CUT);
    ResultFilterPage page(data.get(), &cuts, CutSegment::SEGMENT_CUT, &nothing);
    page.resize(900, 600);
    page.show();
    page.SetResults(results.m_Values, factors, steps, pattern.get(), 0.8F, attributes);
    QCoreApplication::processEvents();
    auto* slider = page.findChild<QSlider*>();
    bool isUp = false;
    for (auto _ : state) {
        isUp = !isUp;
        slider->setValue(int(state.range(0)) + (isUp ? 1 : -1));
        QCoreApplication::processEvents();
    }
}
BENCHMARK(BM_MoveThreshold)->Arg(5)->Arg(80)->Arg(99)->Unit(benchmark::kMillisecond);

} // namespace
