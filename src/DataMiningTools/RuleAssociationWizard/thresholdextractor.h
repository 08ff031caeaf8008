#pragma once

#include "cutsegment.h"
#include "searchmatch.h"
#include <vector>

class CutCollection;
class DataSet;
class Progress;

/// One condition on the rows that a threshold search looks for.
struct ThresholdParameter {
    /// How the value compares to that of the attribute.
    enum Operator {
        VALUE_ABOVE = 0,
        VALUE_ABOVE_OR_EQUAL = 1,
        ATTRIBUTE_ABOVE = 2,
        ATTRIBUTE_ABOVE_OR_EQUAL = 3
    };

    int m_Operator = VALUE_ABOVE;
    int m_Attribute = -1;
    double m_Value = 0;

    /// Whether x, the attribute's value in a row, meets the condition. Not-a-number never does,
    /// and nothing meets an unknown operator.
    bool IsMetBy(double x) const;
};

/// Finds the runs of rows that meet all parameters, inside the segments of one state.
class ThresholdExtractor
{
public:
    /// searchMode: the state of the segments to search.
    ThresholdExtractor(const DataSet* dataSet, const CutCollection* cuts,
                       CutSegment::SEGMENT_STATE searchMode);

    void SetParameters(std::vector<ThresholdParameter> parameters);
    /// Matches whose last row is less than this behind their first are left out.
    void SetMinimumLength(int length) { m_MinimumLength = length; }

    /// Finds the matches anew. Without parameters, or with one on an attribute that does not
    /// exist, there are none. False when it was stopped; the matches are those of before then.
    bool Extract(Progress& progress);
    /// From the first row of a run to its last, in the order of the segments.
    const SearchMatches& GetMatches() const { return m_Matches; }

private:
    bool canSearch() const;
    std::vector<char> findMetRows(RowSpan rows) const;
    void findRuns(RowSpan rows, RowSpan& run, SearchMatches& matches) const;
    void closeRun(RowSpan& run, SearchMatches& matches) const;

    const DataSet* m_DataSet;
    const CutCollection* m_CutCollection;
    CutSegment::SEGMENT_STATE m_SearchMode;
    std::vector<ThresholdParameter> m_Parameters;
    int m_MinimumLength = 0;
    SearchMatches m_Matches;
};
