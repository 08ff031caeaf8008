#include "insertmatches.h"

#include "cutcollection.h"
#include "progress.h"
#include "stepprogress.h"
#include <algorithm>

int InsertMatches(CutCollection& cuts, const SearchMatches& matches,
                  CutSegment::SEGMENT_STATE searchMode, Progress& progress)
{
    progress.SetLabelText(QStringLiteral("Initalizing Cut Insertion"));
    progress.SetRange(0, matches.size());
    if (searchMode == CutSegment::SEGMENT_RESULT)
        cuts.RemoveSegments(CutSegment::SEGMENT_RESULT);
    StepProgress steps(progress, QStringLiteral("Inserting Cut %1 of %2"), matches.size());
    int inserted = 0;
    for (int i = 0; i < matches.size(); ++i) {
        steps.SetStep(i);
        const auto ends = std::minmax(matches[i].m_Rows.m_From, matches[i].m_Rows.m_To);
        if (cuts.InsertCut(ends.first, ends.second, CutSegment::SEGMENT_RESULT))
            ++inserted;
    }
    return inserted;
}
