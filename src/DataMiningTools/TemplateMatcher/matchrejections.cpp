#include "matchrejections.h"

#include <algorithm>
#include <iterator>

void MatchRejections::Reject(const std::vector<int>& steps)
{
    const std::vector<int> known = GetSteps();
    std::vector<int> added;
    std::set_difference(steps.begin(), steps.end(), known.begin(), known.end(),
                        std::back_inserter(added));
    added.erase(std::unique(added.begin(), added.end()), added.end());
    if (!added.empty())
        m_Acts.push_back(std::move(added));
}

void MatchRejections::BringBack()
{
    if (!m_Acts.empty())
        m_Acts.pop_back();
}

std::vector<int> MatchRejections::GetSteps() const
{
    std::vector<int> all;
    for (const std::vector<int>& act : m_Acts)
        all.insert(all.end(), act.begin(), act.end());
    std::sort(all.begin(), all.end());
    return all;
}
