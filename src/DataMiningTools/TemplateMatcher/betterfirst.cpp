#include "betterfirst.h"

#include <algorithm>
#include <tuple>

namespace
{

struct Candidate {
    float m_Confidence;
    CenterPoint m_Match;
    // Among the matches of its factor.
    size_t m_Place;

    bool operator<(const Candidate& other) const
    {
        return std::make_tuple(-m_Confidence, m_Match.m_Step, m_Match.m_Factor) <
               std::make_tuple(-other.m_Confidence, other.m_Match.m_Step, other.m_Match.m_Factor);
    }
};

class BetterFirst
{
public:
    BetterFirst(const CenterPoints& matches, const std::vector<int>& widths,
                const SearchResults& results)
        : m_Matches(matches), m_Widths(widths)
    {
        for (size_t r = 0; r < matches.size(); ++r) {
            m_IsDropped.emplace_back(matches[r].size());
            for (size_t i = 0; i < matches[r].size(); ++i) {
                const int step = matches[r][i];
                m_Candidates.push_back({results.m_Values[r][step], {int(r), step}, i});
            }
        }
        std::sort(m_Candidates.begin(), m_Candidates.end());
    }

    CenterPoints Keep()
    {
        CenterPoints kept(m_Matches.size());
        for (const Candidate& candidate : m_Candidates) {
            const auto factor = size_t(candidate.m_Match.m_Factor);
            if (m_IsDropped[factor][candidate.m_Place])
                continue;
            kept[factor].push_back(candidate.m_Match.m_Step);
            for (size_t r = 0; r < m_Matches.size(); ++r)
                dropAround(candidate.m_Match.m_Step, m_Widths[factor] / 2, r);
        }
        for (std::vector<int>& centers : kept)
            std::sort(centers.begin(), centers.end());
        return kept;
    }

private:
    /// All of a factor that overlap the match, itself included: those whose centres are less than
    /// both half widths away.
    void dropAround(int step, int half, size_t factor)
    {
        const int otherHalf = m_Widths[factor] / 2;
        if (half == 0 || otherHalf == 0)
            return;
        const std::vector<int>& centers = m_Matches[factor];
        const int reach = half + otherHalf;
        const auto from = std::upper_bound(centers.begin(), centers.end(), step - reach);
        const auto to = std::lower_bound(from, centers.end(), step + reach);
        std::fill(m_IsDropped[factor].begin() + (from - centers.begin()),
                  m_IsDropped[factor].begin() + (to - centers.begin()), true);
    }

    const CenterPoints& m_Matches;
    const std::vector<int>& m_Widths;
    std::vector<Candidate> m_Candidates;
    std::vector<std::vector<bool>> m_IsDropped;
};

} // namespace

CenterPoints KeepBetterMatches(const CenterPoints& matches, const std::vector<int>& widths,
                               const SearchResults& results)
{
    return BetterFirst(matches, widths, results).Keep();
}
