#pragma once

#include "searchmatch.h"
#include <vector>

class PatternsDataObject;

/// The confidences of a search, which belong to the matcher: one array per frequency factor, with
/// a value per time step.
struct SearchResults {
    float** m_Values = nullptr;
    int m_Factors = 0;
    int m_Steps = 0;

    bool IsEmpty() const { return !m_Values || m_Factors <= 0 || m_Steps <= 0; }
};

/// The first step without TemplateMatcher's mark of those that are left out, which stands at all
/// frequency factors alike; as many as there are steps when no step was searched.
int FirstSearchedStep(const SearchResults& results);

/// The steps on which matches are centred, ascending, per frequency factor.
using CenterPoints = std::vector<std::vector<int>>;

/// One of them.
struct CenterPoint {
    int m_Factor;
    int m_Step;

    bool operator==(const CenterPoint& other) const
    {
        return m_Factor == other.m_Factor && m_Step == other.m_Step;
    }
};

/// The length of the first signal per signal collection of the pattern; 0 for one without
/// signals.
std::vector<int> TemplateWidths(const PatternsDataObject& pattern);

/// The matches at or above the threshold. Each takes the best of the half width of the template
/// that starts where the threshold is first reached, on a tie the latest step, and the search
/// goes on behind that half width. widths: of the template, per frequency factor; a factor
/// without a width has no matches.
CenterPoints computeCenterPoints(const SearchResults& results, const std::vector<int>& widths,
                                 float threshold);

/// The span of half a template to both sides, inside the steps.
RowSpan ExtentOfMatch(int center, int width, int steps);

/// The spans of all matches of the pattern, by frequency factor and then by step. There are none
/// for a factor without signals.
SearchMatches ExtentsOfMatches(const CenterPoints& matches, const PatternsDataObject& pattern,
                               int steps);

/// The matches without those on one of the steps, which are ascending.
CenterPoints WithoutSteps(const CenterPoints& matches, const std::vector<int>& steps);

/// All different steps from first to last, both included, on which a match is centred; ascending.
std::vector<int> StepsOfMatches(const CenterPoints& matches, double first, double last);

qint64 CountMatches(const CenterPoints& matches);

/// At most that many of the matches, evenly spread; all of them when there are no more.
std::vector<CenterPoint> ChooseEvenly(const CenterPoints& matches, int most);
