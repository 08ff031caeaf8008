#include "insertmatches.h"

#include "cutcollection.h"
#include "labelling.h"
#include "progress.h"
#include "stepprogress.h"
#include <algorithm>

namespace
{

int& countOf(MatchFates& fates, CutSegment::SEGMENT_STATE obstacle)
{
    switch (obstacle) {
    case CutSegment::SEGMENT_LABELED:
        return fates.m_CrossLabels;
    case CutSegment::SEGMENT_RESULT:
        return fates.m_CrossResults;
    default:
        return fates.m_CrossPlainCuts;
    }
}

// A segment could be cut out of a label that holds it, and the label would lose its end.
void insert(CutCollection& cuts, int from, int to, bool mergesPlainCuts, MatchFates& fates)
{
    const auto state = cuts.GetStrongestState(from, to);
    if (state == CutSegment::SEGMENT_CUT && mergesPlainCuts)
        cuts.MergePlain(from, to);
    const bool isInserted =
        state == CutSegment::SEGMENT_CUT && cuts.InsertCut(from, to, CutSegment::SEGMENT_RESULT);
    ++(isInserted ? fates.m_Inserted : countOf(fates, state));
}

} // namespace

MatchFates InsertMatches(CutCollection& cuts, const SearchMatches& matches,
                         const MatchInsertion& insertion, Progress& progress)
{
    progress.SetLabelText(QStringLiteral("Initalizing Cut Insertion"));
    progress.SetRange(0, matches.size());
    if (insertion.m_SearchMode == CutSegment::SEGMENT_RESULT)
        Labelling(&cuts, nullptr).RejectAll();
    StepProgress steps(progress, QStringLiteral("Inserting Cut %1 of %2"), matches.size());
    MatchFates fates;
    for (int i = 0; i < matches.size(); ++i) {
        steps.SetStep(i);
        const auto ends = std::minmax(matches[i].m_Rows.m_From, matches[i].m_Rows.m_To);
        insert(cuts, ends.first, ends.second, insertion.m_MergesPlainCuts, fates);
    }
    return fates;
}

MatchFates ForecastMatches(const CutCollection& cuts, const SearchMatches& matches,
                           const MatchInsertion& insertion)
{
    CutCollection copy;
    copy.CopyFrom(cuts);
    NoProgress progress;
    return InsertMatches(copy, matches, insertion, progress);
}
