#include "ruleextractor.h"

#include "cutcollection.h"
#include "dataset.h"
#include "labelcollection.h"
#include "progress.h"
#include "stepprogress.h"
#include <algorithm>

namespace
{

/// Where segments end, in ascending order, with the ways to all segments up to each.
class WaysByEnd
{
public:
    template <class Occurrences>
    explicit WaysByEnd(const Occurrences& occurrences)
    {
        std::vector<std::pair<int, quint64>> ends;
        ends.reserve(occurrences.size());
        for (const auto& occurrence : occurrences)
            ends.emplace_back(occurrence.m_Segment->GetTo(), occurrence.m_Ways);
        std::sort(ends.begin(), ends.end());
        m_Ways.push_back(0);
        for (const auto& [end, ways] : ends) {
            m_Ends.push_back(end);
            m_Ways.push_back(m_Ways.back() + ways);
        }
    }

    /// The ways to all segments that end from row lowest to row highest.
    quint64 Count(int lowest, int highest) const
    {
        const auto first = std::lower_bound(m_Ends.begin(), m_Ends.end(), lowest);
        const auto end = std::upper_bound(first, m_Ends.end(), highest);
        return m_Ways[size_t(end - m_Ends.begin())] - m_Ways[size_t(first - m_Ends.begin())];
    }

private:
    std::vector<int> m_Ends;
    std::vector<quint64> m_Ways;
};

} // namespace

RuleExtractor::RuleExtractor(const DataSet* dataSet, const CutCollection* cuts,
                             const LabelCollection* labels, CutSegment::SEGMENT_STATE searchMode)
    : m_DataSet(dataSet), m_CutCollection(cuts), m_LabelCollection(labels), m_SearchMode(searchMode)
{
}

bool RuleExtractor::canSearch() const
{
    return m_DataSet && m_CutCollection && m_LabelCollection && m_SearchLength >= 0 &&
           !m_RuleLabels.isEmpty();
}

bool RuleExtractor::Extract(Progress& progress)
{
    const int count = canSearch() ? m_RuleLabels.size() : 0;
    StepProgress steps(progress, QStringLiteral("Searching for rule %1 of %2"), count);
    Occurrences current = count > 0 ? findLabel(m_RuleLabels.first()) : Occurrences();
    for (int label = 1; label < count; ++label) {
        steps.SetStep(label);
        if (progress.IsStopRequested())
            return false;
        current = follow(current, findLabel(m_RuleLabels.at(label)));
    }
    m_Matches = findMatches(current);
    return true;
}

// A behaviour may still hold segments that have left the collection; they count no more.
RuleExtractor::Occurrences RuleExtractor::findLabel(const QString& name) const
{
    Occurrences found;
    const BehaviorLabel* label = m_LabelCollection->FindLabel(name);
    for (int i = 0; label && i < label->GetInstanceCount(); ++i) {
        const CutSegment* segment = label->GetInstance(i)->GetSegment();
        if (m_CutCollection->Contains(segment))
            found.push_back({segment, 1});
    }
    return found;
}

RuleExtractor::Occurrences RuleExtractor::follow(const Occurrences& current,
                                                 const Occurrences& next)
{
    const WaysByEnd waysByEnd(current);
    Occurrences followers;
    for (const Occurrence& occurrence : next) {
        const int from = occurrence.m_Segment->GetFrom();
        const quint64 ways = waysByEnd.Count(from - MaximumGap, from);
        if (ways > 0)
            followers.push_back({occurrence.m_Segment, std::min(ways, MaximumWays)});
    }
    return followers;
}

SearchMatches RuleExtractor::findMatches(const Occurrences& last) const
{
    SearchMatches matches;
    QHash<int, int> found; // by the first row
    for (const Occurrence& occurrence : last) {
        int index = 0;
        const CutSegment* next =
            m_CutCollection->FindSegment(occurrence.m_Segment->GetTo() + 1, index);
        if (!next || next->GetState() != m_SearchMode)
            continue;
        const int from = next->GetFrom();
        const int end = std::min(next->GetTo(), m_DataSet->GetRowCount());
        if (from < 0 || end - from < m_SearchLength)
            continue;
        const auto earlier = found.constFind(from);
        if (earlier != found.constEnd()) {
            matches[*earlier].m_Count += occurrence.m_Ways;
            continue;
        }
        found.insert(from, matches.size());
        matches.append({{from, from + m_SearchLength}, occurrence.m_Ways});
    }
    return matches;
}
