#include "matchextraction.h"

#include "patternsdataobject.h"
#include "templatematcher.h"
#include "wholecorrelation.h"
#include <algorithm>
#include <iterator>

namespace
{

std::vector<int> centersOfFactor(const float* values, int steps, int width, float threshold)
{
    std::vector<int> centers;
    for (int i = 0; i < steps; ++i) {
        if (!(values[i] >= threshold))
            continue;
        const int end = i + width / 2;
        const int scanEnd = std::min(end, steps);
        int center = i;
        float best = values[i];
        for (int j = i; j < scanEnd; ++j) {
            if (values[j] >= best) {
                best = values[j];
                center = j;
            }
        }
        centers.push_back(center);
        i = end;
    }
    return centers;
}

} // namespace

int FirstSearchedStep(const SearchResults& results)
{
    if (results.IsEmpty())
        return results.m_Steps;
    const float* values = results.m_Values[0];
    const auto isSearched = [](float value) { return value != ExclusionMark; };
    return int(std::find_if(values, values + results.m_Steps, isSearched) - values);
}

std::vector<int> TemplateWidths(const PatternsDataObject& pattern)
{
    std::vector<int> widths;
    for (const auto* collection : pattern.GetSignalCollections()) {
        const auto& stored = collection->GetSignals();
        widths.push_back(stored.isEmpty() ? 0 : stored.first()->GetLength());
    }
    return widths;
}

CenterPoints computeCenterPoints(const SearchResults& results, const std::vector<int>& widths,
                                 float threshold)
{
    CenterPoints matches(size_t(std::max(results.m_Factors, 0)));
    if (results.IsEmpty())
        return matches;
    for (size_t r = 0; r < std::min(matches.size(), widths.size()); ++r) {
        if (widths[r] > 0)
            matches[r] =
                centersOfFactor(results.m_Values[r], results.m_Steps, widths[r], threshold);
    }
    return matches;
}

RowSpan ExtentOfMatch(int center, int width, int steps)
{
    return {std::max(center - width / 2, 0), std::min(center + width / 2, steps)};
}

SearchMatches ExtentsOfMatches(const CenterPoints& matches, const PatternsDataObject& pattern,
                               int steps)
{
    SearchMatches extents;
    const std::vector<int> widths = TemplateWidths(pattern);
    for (size_t r = 0; r < std::min(matches.size(), widths.size()); ++r) {
        if (widths[r] == 0)
            continue;
        const double factor = pattern.GetSignalCollections()[int(r)]->GetFrequencyFactor();
        qCDebug(lcMatcher, "Signal freq - width: %g %d", factor, widths[r]);
        for (const int center : matches[r])
            extents.append({ExtentOfMatch(center, widths[r], steps)});
    }
    return extents;
}

CenterPoints WithoutSteps(const CenterPoints& matches, const std::vector<int>& steps)
{
    if (steps.empty())
        return matches;
    CenterPoints rest(matches.size());
    for (size_t r = 0; r < matches.size(); ++r)
        std::set_difference(matches[r].begin(), matches[r].end(), steps.begin(), steps.end(),
                            std::back_inserter(rest[r]));
    return rest;
}

std::vector<int> StepsOfMatches(const CenterPoints& matches, double first, double last)
{
    std::vector<int> steps;
    for (const std::vector<int>& centers : matches) {
        const auto from = std::lower_bound(centers.begin(), centers.end(), first);
        const auto to = std::upper_bound(from, centers.end(), last);
        steps.insert(steps.end(), from, to);
    }
    std::sort(steps.begin(), steps.end());
    steps.erase(std::unique(steps.begin(), steps.end()), steps.end());
    return steps;
}

qint64 CountMatches(const CenterPoints& matches)
{
    qint64 count = 0;
    for (const std::vector<int>& centers : matches)
        count += qint64(centers.size());
    return count;
}

std::vector<CenterPoint> ChooseEvenly(const CenterPoints& matches, int most)
{
    const qint64 total = CountMatches(matches);
    const qint64 count = std::min(total, qint64(most));
    std::vector<CenterPoint> chosen;
    chosen.reserve(size_t(count));
    size_t factor = 0;
    qint64 before = 0; // matches of the factors that have been passed
    for (qint64 i = 0; i < count; ++i) {
        const qint64 index = i * total / count;
        while (index - before >= qint64(matches[factor].size()))
            before += qint64(matches[factor++].size());
        chosen.push_back({int(factor), matches[factor][size_t(index - before)]});
    }
    return chosen;
}
