#pragma once

#include "insertmatches.h"
#include <QTimer>
#include <QWidget>

class QCheckBox;
class QLabel;

/// Tells before a search ends how many of its matches can be inserted and what keeps the others
/// out, beside the choice whether plain cuts do.
class InsertionForecast : public QWidget
{
    Q_OBJECT
public:
    /// cuts: where the matches will go; not changed here. searchMode: the state of the segments
    /// that were searched.
    InsertionForecast(CutCollection* cuts, CutSegment::SEGMENT_STATE searchMode,
                      QWidget* parent = nullptr);

    /// Counts anew, very many matches only when no others follow at once; at first there are none.
    void SetMatches(const SearchMatches& matches);
    const SearchMatches& GetMatches() const { return m_Matches; }
    /// Asks before results go that nothing replaces; true where nothing has to be asked.
    bool AgreesToInsert();
    /// Makes the matches into segments, as told.
    void Insert(Progress& progress);

private:
    MatchInsertion getInsertion() const;
    void countFates();

    CutCollection* m_CutCollection;
    CutSegment::SEGMENT_STATE m_SearchMode;
    SearchMatches m_Matches;
    MatchFates m_Fates;
    QTimer m_Delay;
    QLabel* m_Text;
    QCheckBox* m_MergesPlainCuts;
};
