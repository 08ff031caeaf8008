#pragma once

#include "cutsegment.h"
#include "searchmatch.h"

class CutCollection;
class Progress;

/// How matches become segments.
struct MatchInsertion {
    /// The state of the segments that were searched. That of a result: the matches replace all
    /// results that there are.
    CutSegment::SEGMENT_STATE m_SearchMode = CutSegment::SEGMENT_CUT;
    /// Plain segments that alone would keep a match out become one.
    bool m_MergesPlainCuts = true;
};

/// What has become of matches: how many were inserted, and how many were kept out by what.
struct MatchFates {
    int m_Inserted = 0;
    int m_CrossPlainCuts = 0;
    /// They share rows with a label.
    int m_CrossLabels = 0;
    /// They share rows with a result, which may be another match, but with no label.
    int m_CrossResults = 0;
};

/// Makes matches into segments that await a decision, in their order. A match across the bounds of
/// a segment, or on a label or another result, makes none; ends in the wrong order are exchanged.
///
/// It cannot be stopped: a segment gives its rows to its neighbours when it is removed, and
/// nothing tells them back.
MatchFates InsertMatches(CutCollection& cuts, const SearchMatches& matches,
                         const MatchInsertion& insertion, Progress& progress);

/// What InsertMatches would return; the cuts stay as they are.
MatchFates ForecastMatches(const CutCollection& cuts, const SearchMatches& matches,
                           const MatchInsertion& insertion);
