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
                                       CutSegment::SEGMENT_STATE searchMode)
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

bool ThresholdExtractor::Extract(Progress& progress)
{
    constexpr int rowsAtOnce = 8192;
    SearchMatches matches;
    const int count = canSearch() ? m_CutCollection->GetSegmentCount() : 0;
    StepProgress steps(progress, QStringLiteral("Searching segment %1 of %2"), count);
    for (int i = 0; i < count; ++i) {
        const CutSegment& segment = *m_CutCollection->GetSegment(i);
        const bool isSearched = segment.GetState() == m_SearchMode;
        const int end = isSearched ? std::min(segment.GetTo(), m_DataSet->GetRowCount()) : 0;
        RowSpan run;
        for (int from = std::max(segment.GetFrom(), 0); from < end; from += rowsAtOnce) {
            steps.SetStep(i);
            if (progress.IsStopRequested())
                return false;
            findRuns({from, std::min(from + rowsAtOnce, end)}, run, matches);
        }
        closeRun(run, matches);
    }
    m_Matches = matches;
    return true;
}

std::vector<char> ThresholdExtractor::findMetRows(RowSpan rows) const
{
    std::vector<char> isMet(size_t(rows.GetLength()), 1);
    for (const ThresholdParameter& parameter : m_Parameters) {
        const double* values = m_DataSet->GetColumn(parameter.m_Attribute).data() + rows.m_From;
        for (size_t i = 0; i < isMet.size(); ++i)
            isMet[i] = char(isMet[i] & int(parameter.IsMetBy(values[i])));
    }
    return isMet;
}

/// run: the one that the rows before have left open, and that these leave open.
void ThresholdExtractor::findRuns(RowSpan rows, RowSpan& run, SearchMatches& matches) const
{
    const std::vector<char> isMet = findMetRows(rows);
    for (int row = rows.m_From; row < rows.m_To; ++row) {
        if (!isMet[size_t(row - rows.m_From)])
            closeRun(run, matches);
        else if (run.IsEmpty())
            run = {row, row + 1};
        else
            run.m_To = row + 1;
    }
}

void ThresholdExtractor::closeRun(RowSpan& run, SearchMatches& matches) const
{
    // A match ends with its last row, so its length is one less than the number of its rows.
    const RowSpan match{run.m_From, run.m_To - 1};
    if (!run.IsEmpty() && match.GetLength() >= m_MinimumLength)
        matches.append({match});
    run = {};
}
