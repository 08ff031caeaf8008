#include "persistenceextractor.h"

#include "stoppablesort.h"
#include <algorithm>
#include <cmath>
#include <tuple>

bool PersistenceExtractor::extract(const std::vector<float>& data, Progress& progress)
{
    takeData(data);
    const size_t size = m_Data.size();
    RowProgress steps(progress, StoppableSort::CountRows(size) + qint64(size));
    const bool isDone = sortIndices(steps) && floodAll(steps);
    if (!isDone)
        m_Pairs.clear();
    sortPairs();
    return isDone;
}

void PersistenceExtractor::takeData(const std::vector<float>& data)
{
    m_Rows.clear();
    m_Data.clear();
    m_Data.reserve(data.size());
    for (size_t row = 0; row < data.size(); ++row) {
        if (std::isnan(data[row]))
            continue;
        m_Rows.push_back(int(row));
        m_Data.push_back(data[row]);
    }
    m_Colors.assign(m_Data.size(), -1);
    m_Components.clear();
    m_Pairs.clear();
    const size_t expected = m_Data.size() / 20 + 1;
    m_Components.reserve(expected);
    m_Pairs.reserve(expected);
}

bool PersistenceExtractor::sortIndices(RowProgress& progress)
{
    const size_t size = m_Data.size();
    m_SortedIndices.resize(size);
    for (size_t i = 0; i < size; ++i)
        m_SortedIndices[i] = {int(i), m_Data[i]};
    const auto isLower = [](const auto& a, const auto& b) {
        return std::tie(a.second, a.first) < std::tie(b.second, b.first);
    };
    return StoppableSort::Run(m_SortedIndices, isLower, progress);
}

bool PersistenceExtractor::floodAll(RowProgress& progress)
{
    for (const auto& [index, value] : m_SortedIndices) {
        flood(index);
        if (!progress.Advance())
            return false;
    }
    return true;
}

void PersistenceExtractor::sortPairs()
{
    for (PairedExtrema& pair : m_Pairs) {
        pair.m_MinIndex = m_Rows[size_t(pair.m_MinIndex)];
        pair.m_MaxIndex = m_Rows[size_t(pair.m_MaxIndex)];
    }
    std::sort(m_Pairs.begin(), m_Pairs.end(), [](const auto& a, const auto& b) {
        return std::tie(a.m_Persistence, a.m_MinIndex) < std::tie(b.m_Persistence, b.m_MinIndex);
    });
}

void PersistenceExtractor::flood(int index)
{
    const bool isLast = size_t(index) + 1 == m_Data.size();
    const int left = index > 0 ? m_Colors[size_t(index) - 1] : -1;
    const int right = isLast ? -1 : m_Colors[size_t(index) + 1];
    if (left == -1 && right == -1) {
        createComponent(index);
    } else if (left == -1 || right == -1) {
        extendComponent(std::max(left, right), index);
    } else {
        const Component& leftOne = m_Components[size_t(left)];
        const Component& rightOne = m_Components[size_t(right)];
        const bool isLeftHigher = leftOne.m_MinValue > rightOne.m_MinValue;
        createPair(index, isLeftHigher ? leftOne.m_MinIndex : rightOne.m_MinIndex);
        m_Colors[size_t(index)] = mergeComponents(left, right);
    }
}

void PersistenceExtractor::createComponent(int index)
{
    m_Colors[size_t(index)] = int(m_Components.size());
    m_Components.push_back({index, index, index, m_Data[size_t(index)], true});
}

void PersistenceExtractor::extendComponent(int component, int index)
{
    Component& extended = m_Components[size_t(component)];
    (index < extended.m_LeftEdge ? extended.m_LeftEdge : extended.m_RightEdge) = index;
    m_Colors[size_t(index)] = component;
}

int PersistenceExtractor::mergeComponents(int first, int second)
{
    const auto rank = [this](int component) {
        return std::make_pair(m_Components[size_t(component)].m_MinValue, component);
    };
    const int survivorId = std::min(rank(first), rank(second)).second;
    Component& survivor = m_Components[size_t(survivorId)];
    Component& loser = m_Components[size_t(survivorId == first ? second : first)];
    loser.m_Alive = false;
    m_Colors[size_t(loser.m_LeftEdge)] = survivorId;
    m_Colors[size_t(loser.m_RightEdge)] = survivorId;
    if (survivor.m_MinIndex <= loser.m_MinIndex)
        survivor.m_RightEdge = loser.m_RightEdge;
    else
        survivor.m_LeftEdge = loser.m_LeftEdge;
    return survivorId;
}

void PersistenceExtractor::createPair(int a, int b)
{
    const float valueA = m_Data[size_t(a)];
    const float valueB = m_Data[size_t(b)];
    const bool isBMinimum = std::tie(valueB, b) <= std::tie(valueA, a);
    PairedExtrema pair{a, b, 0.0F};
    if (isBMinimum)
        std::swap(pair.m_MinIndex, pair.m_MaxIndex);
    // Two equal infinities have no difference.
    if (valueA != valueB)
        pair.m_Persistence = std::abs(valueA - valueB);
    m_Pairs.push_back(pair);
}

std::vector<PairedExtrema> PersistenceExtractor::getPairs(float threshold) const
{
    if (!(threshold >= 0.0F))
        return {};
    const auto first = std::lower_bound(
        m_Pairs.begin(), m_Pairs.end(), threshold,
        [](const PairedExtrema& pair, float least) { return pair.m_Persistence < least; });
    return {first, m_Pairs.end()};
}
