#include "betterfirst.h"
#include "cutcollection.h"
#include "dataset.h"
#include "patternsdataobject.h"
#include "templatematcher.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <random>

// How many of the wing beats of a long recording a search frames as they are.

namespace
{

constexpr int rows = 5'000'000;
constexpr int beats = 5'000;
constexpr int pause = rows / beats;
constexpr int beatLength = 800;
constexpr double pi = 3.14159265358979;

/// Three strokes, weaker at both ends; x from 0 to 1.
double beatAt(double x)
{
    return std::cos(3 * pi * (2 * x - 1)) * std::pow(std::sin(pi * x), 0.25);
}

/// Beats of different strength and speed in noise and drift, about one each thousand rows.
struct Beats {
    DataSet m_Data;
    std::vector<int> m_Centers;

    Beats()
    {
        std::mt19937 random(1);
        std::normal_distribution<double> noise(0.0, 0.2);
        std::vector<DataColumn> values;
        values.emplace_back(rows);
        for (int row = 0; row < rows; ++row)
            values.front()[row] = std::sin(row * 0.0003) + noise(random);
        std::uniform_real_distribution<double> factor(0.9, 1.1);
        std::uniform_int_distribution<int> shift(0, pause - beatLength * 11 / 10);
        for (int beat = 0; beat < beats; ++beat)
            addBeat(values.front(), beat * pause + shift(random), int(beatLength * factor(random)),
                    factor(random));
        m_Data.TakeColumns(std::move(values));
    }

private:
    void addBeat(DataColumn& values, int from, int length, double strength)
    {
        for (int i = 0; i < length; ++i)
            values[from + i] += strength * beatAt(double(i) / length);
        m_Centers.push_back(from + length / 2);
    }
};

/// The beat without noise, at the half, the whole and the double length.
std::unique_ptr<PatternsDataObject> makePattern()
{
    auto pattern = std::make_unique<PatternsDataObject>();
    for (const double factor : {0.5, 1.0, 2.0}) {
        std::vector<double> values;
        for (int i = 0; i < int(beatLength * factor); ++i)
            values.push_back(beatAt(i / (beatLength * factor)));
        auto* signal = new SignalTemplateDataObject;
        signal->SetSignal(values.data(), int(values.size()));
        signal->computeMean();
        signal->computeSd();
        signal->setAttributeName(QStringLiteral("A"));
        auto* collection = new SignalTemplateCollectionDataObject(factor);
        collection->AddSignal(signal);
        pattern->AddSignalCollection(collection);
    }
    return pattern;
}

/// The beats of which the middle half holds the middle of exactly one result, at its length.
int countFramed(const CutCollection& cuts, const std::vector<int>& centers)
{
    std::vector<int> hits(centers.size());
    for (int i = 0; i < cuts.GetSegmentCount(); ++i) {
        const CutSegment* segment = cuts.GetSegment(i);
        const auto beat = size_t(std::min(segment->GetFrom() / pause, beats - 1));
        const int middle = (segment->GetFrom() + segment->GetTo()) / 2;
        if (segment->GetState() == CutSegment::SEGMENT_RESULT)
            for (size_t b = beat; b < std::min(beat + 2, centers.size()); ++b)
                hits[b] += std::abs(middle - centers[b]) <= beatLength / 4 ? 1 : 0;
    }
    return int(std::count(hits.begin(), hits.end(), 1));
}

// The arguments: the measure, and whether the better match goes first.
void frameBeats(benchmark::State& state)
{
    static Beats recording;
    const auto pattern = makePattern();
    const std::vector<int> widths = TemplateWidths(*pattern);
    TemplateMatcher matcher(&recording.m_Data, pattern.get(), 0, int(state.range(0)));
    if (!matcher.Convolve({{QStringLiteral("A"), 0}}))
        state.SkipWithError("the matcher refused");
    const SearchResults results{matcher.getResults(), int(widths.size()), rows};
    for (auto _ : state) {
        CenterPoints matches = computeCenterPoints(results, widths, 0.3F);
        if (state.range(1) == 1)
            matches = KeepBetterMatches(matches, widths, results);
        state.counters["matches"] = double(CountMatches(matches));
        CutCollection cuts;
        cuts.InsertCut(0, rows, CutSegment::SEGMENT_CUT);
        for (const SearchMatch& match : ExtentsOfMatches(matches, *pattern, rows))
            cuts.InsertCut(match.m_Rows.m_From, match.m_Rows.m_To, CutSegment::SEGMENT_RESULT);
        state.counters["framed"] = countFramed(cuts, recording.m_Centers);
    }
}
BENCHMARK(frameBeats)
    ->ArgsProduct({{TemplateMatcher::MEASURE_NORMALIZED_CORRELATION,
                    TemplateMatcher::MEASURE_EXACT_CORRELATION},
                   {0, 1}})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace
