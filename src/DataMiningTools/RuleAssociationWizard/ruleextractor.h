#pragma once

#include "cutsegment.h"
#include "searchmatch.h"
#include <QStringList>
#include <vector>

class CutCollection;
class DataSet;
class LabelCollection;
class Progress;

/// Finds what follows a sequence of behaviours: where segments of all rule labels come one after
/// the other, the match is the head of the segment behind the last of them.
class RuleExtractor
{
public:
    /// The most rows between two labels of a rule.
    static constexpr int MaximumGap = 600;
    /// Matches are not counted beyond this many ways to one segment.
    static constexpr quint64 MaximumWays = 1000000000000;

    /// searchMode: the state of the segments that hold the matches.
    RuleExtractor(const DataSet* dataSet, const CutCollection* cuts, const LabelCollection* labels,
                  CutSegment::SEGMENT_STATE searchMode);

    /// Names of behaviours, in the order of the rule.
    void SetRuleLabels(const QStringList& labels) { m_RuleLabels = labels; }
    /// The number of rows of each match.
    void SetSearchLength(int length) { m_SearchLength = length; }

    /// Finds the matches anew. Without rule labels or with a negative length there are none, and
    /// none reaches beyond the data. False when it was stopped; the matches are those of before
    /// then.
    bool Extract(Progress& progress);
    /// Each stretch once, with the number of ways in which the rule leads to it, in the order in
    /// which it was found first.
    const SearchMatches& GetMatches() const { return m_Matches; }

private:
    /// A segment of a label and the number of ways in which the rule so far leads to it.
    struct Occurrence {
        const CutSegment* m_Segment;
        quint64 m_Ways;
    };
    using Occurrences = std::vector<Occurrence>;

    Occurrences findLabel(const QString& name) const;
    static Occurrences follow(const Occurrences& current, const Occurrences& next);
    bool canSearch() const;
    SearchMatches findMatches(const Occurrences& last) const;

    const DataSet* m_DataSet;
    const CutCollection* m_CutCollection;
    const LabelCollection* m_LabelCollection;
    CutSegment::SEGMENT_STATE m_SearchMode;
    int m_SearchLength = 0;
    QStringList m_RuleLabels;
    SearchMatches m_Matches;
};
