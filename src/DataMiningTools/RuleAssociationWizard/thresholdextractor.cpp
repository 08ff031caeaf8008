#include "thresholdextractor.h"

#include "cutcollection.h"
#include "dataset.h"
#include "progress.h"
#include "stepprogress.h"
#include <algorithm>

bool ThresholdParameter::IsMetBy(double x) const
{
    switch (m_Operator) {
    case VALUE_ABOVE:
        return m_Value > x;
    case VALUE_ABOVE_OR_EQUAL:
        return m_Value >= x;
    case ATTRIBUTE_ABOVE:
        return x > m_Value;
    case ATTRIBUTE_ABOVE_OR_EQUAL:
        return x >= m_Value;
    default:
        return false;
    }
}

ThresholdExtractor::ThresholdExtractor(const DataSet* dataSet, const CutCollection* cuts,
                                       int searchMode)
    : m_DataSet(dataSet), m_CutCollection(cuts), m_SearchMode(searchMode)
{
}

void ThresholdExtractor::SetParameters(std::vector<ThresholdParameter> parameters)
{
    m_Parameters = std::move(parameters);
}

bool ThresholdExtractor::canSearch() const
{
    const auto exists = [this](const ThresholdParameter& parameter) {
        return parameter.m_Attribute >= 0 && parameter.m_Attribute < m_DataSet->GetAttributeCount();
    };
    return m_DataSet && m_CutCollection && !m_Parameters.empty() &&
           std::all_of(m_Parameters.begin(), m_Parameters.end(), exists);
}

void ThresholdExtractor::Extract(Progress& progress)
{
    m_Matches.clear();
    if (!canSearch())
        return;
    const int count = m_CutCollection->GetSegmentCount();
    StepProgress steps(progress, QStringLiteral("Searching segment %1 of %2"), count);
    for (int i = 0; i < count; ++i) {
        steps.SetStep(i);
        const CutSegment& segment = *m_CutCollection->GetSegment(i);
        if (segment.GetState() == m_SearchMode)
            searchSegment(segment);
    }
}

bool ThresholdExtractor::isMetByRow(int row) const
{
    for (const ThresholdParameter& parameter : m_Parameters) {
        if (!parameter.IsMetBy(m_DataSet->GetValue(row, parameter.m_Attribute)))
            return false;
    }
    return true;
}

void ThresholdExtractor::searchSegment(const CutSegment& segment)
{
    constexpr int none = -1;
    const int end = std::min(segment.GetTo(), m_DataSet->GetRowCount());
    int runStart = none;
    for (int row = std::max(segment.GetFrom(), 0); row < end; ++row) {
        if (!isMetByRow(row)) {
            if (runStart != none)
                closeRun(runStart, row);
            runStart = none;
        } else if (runStart == none) {
            runStart = row;
        }
    }
    if (runStart != none)
        closeRun(runStart, end);
}

void ThresholdExtractor::closeRun(int from, int end)
{
    // A match ends with its last row, so its length is one less than the number of its rows.
    const int last = end - 1;
    if (last - from >= m_MinimumLength)
        m_Matches.append({from, last});
}
