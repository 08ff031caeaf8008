#pragma once

#include "cutsegment.h"
#include "progress.h"
#include "rowspan.h"
#include "segmentlist.h"
#include <QList>
#include <QPair>
#include <memory>
#include <optional>
#include <vector>

class DataSet;
class PatternsDataObject;
class RowProgress;
struct CutPiece;

/// What the removal of a segment has changed beside it. A neighbour that there was not, or that
/// stayed as it was, is null.
struct SegmentRemoval {
    CutSegment* m_Left = nullptr;
    SegmentEnds m_LeftBefore;
    CutSegment* m_Right = nullptr;
    SegmentEnds m_RightBefore;
    /// Where the right neighbour stood, when it has left the list, too; else -1.
    int m_RightIndex = -1;
    /// Where the segment stood after that.
    int m_Index = -1;
};

/// What becomes of cuts that are asked for.
struct CutReview {
    /// How many cuts there will be: those that no segment refuses.
    int m_Count = 0;
    /// Of these, the places among those asked for of cuts that shorten a labelled segment. A cut
    /// at a label's end shortens nothing.
    std::vector<int> m_InLabels;
};

/// The ordered partition of a recording's rows into segments.
///
/// Segments that leave the list stay alive as long as the collection: views may still point at
/// them.
class CutCollection
{
public:
    CutCollection() = default;
    CutCollection(const CutCollection&) = delete;
    CutCollection& operator=(const CutCollection&) = delete;

    int GetSegmentCount() const { return m_Segments.GetCount(); }
    /// No bounds check.
    CutSegment* GetSegment(int index) const { return m_Segments.Get(index); }
    bool Contains(const CutSegment* segment) const { return m_Segments.Contains(segment); }
    /// -1 for a segment not in the list.
    int IndexOf(const CutSegment* segment) const { return m_Segments.IndexOf(segment); }
    /// The first segment whose span holds row, both ends included: a shared boundary row belongs
    /// to the segment on its left. Null and index 0 if there is none.
    CutSegment* FindSegment(int row, int& index) const;
    /// The index of the first segment at start or later that has a row of from to to, both
    /// included; -1 if there is none.
    int FindNextTouching(int from, int to, int start) const;
    /// All segments that lie wholly inside from and to.
    QList<CutSegment*> GetSegments(int from, int to) const;
    int CountSegments(CutSegment::SEGMENT_STATE state) const;

    /// Cuts [from, to] out of the segment that holds it. The very first segment keeps the plain
    /// state, whatever is asked for. Null, and nothing changed, when the range crosses a
    /// boundary.
    CutSegment* InsertCut(int from, int to, CutSegment::SEGMENT_STATE state);
    /// Splits the segment that holds row at; the new segment is the right part. Null when there
    /// is none.
    CutSegment* InsertCut(int at, CutSegment::SEGMENT_STATE state);
    /// Does what InsertCut does for each of the rows in their order, in one walk over the segments:
    /// n log n for n rows. False, and nothing changed, when the progress asked to stop.
    bool InsertCutsAt(const std::vector<int>& rows, CutSegment::SEGMENT_STATE state,
                      Progress& progress = NoProgress::Shared());
    /// The same with InsertCut of a range, for ranges of which none starts before the end of the
    /// one in front.
    bool InsertRanges(const std::vector<RowSpan>& ranges, CutSegment::SEGMENT_STATE state,
                      Progress& progress = NoProgress::Shared());
    /// What InsertRanges will do, or InsertCutsAt for spans that start and end at a row, in any
    /// order. None when the progress asked to stop.
    std::optional<CutReview> ReviewCuts(const std::vector<RowSpan>& cuts,
                                        Progress& progress = NoProgress::Shared()) const;
    /// Makes search hits into segments that await a decision. hits[t][i] tells that template t
    /// of the pattern matched with its centre on row i, for templates templates and length rows;
    /// rows that are the second member of an excluded pair are left out, and so are hits across
    /// a boundary. The fifth argument is not used.
    void InsertCuts(bool** hits, int templates, int length, PatternsDataObject* pattern, int,
                    const QList<QPair<int, int>>& excluded);

    /// Returns all segments to their stored ends, a segment not beyond the stored start of the
    /// next one, and then lets labelled segments that are less than gap rows apart meet halfway.
    /// Stored ends stay, so a smaller gap takes it back.
    void MergeLabels(int gap);
    /// Removes cuts between rows from and to. One pass leaves out the neighbour of what it
    /// removed, so a second call may find more. False with fewer than two segments.
    bool MergeCuts(int from, int to);

    /// Gives a segment's span to a neighbour. False, and nothing changed, when both neighbours
    /// are labelled or otherwise can't take it, or there is none on the left and a labelled one
    /// on the right.
    bool RemoveSegment(CutSegment* cut) { return TakeOut(cut).has_value(); }
    /// The same, and says what else it has changed; nothing where RemoveSegment is false.
    std::optional<SegmentRemoval> TakeOut(CutSegment* cut);
    /// RemoveSegment on all of that state, from the last to the first.
    void RemoveSegments(CutSegment::SEGMENT_STATE state);
    /// Moves both ends of a segment and those of its neighbours with them. A first segment that
    /// leaves row 0 gets a new segment in front, a last one that leaves the data set's end a new
    /// tail. Does nothing for a segment not in the list or alone in it.
    void MoveSegment(DataSet* dataSet, CutSegment* segment, int from, int to);
    /// By first row; segments with the same one keep their order.
    void Sort();
    /// Makes one segment of the plain ones that share more than an end row with from to to. False,
    /// and nothing changed, when there are fewer than two, another is among them, or they do not
    /// hold these rows without a gap.
    bool MergePlain(int from, int to);
    /// The state of the segments that share more than an end row with from to to: labelled where
    /// one is, else a result where one is, else plain.
    CutSegment::SEGMENT_STATE GetStrongestState(int from, int to) const;
    /// Takes over the ends, states and colours of other segments, as segments of its own.
    void CopyFrom(const CutCollection& other);

private:
    CutSegment* findNeighbour(const CutSegment* cut, const EndLimits& limits,
                              const char* message) const;
    CutSegment* newSegment(int from, int to);
    std::vector<CutSegment*> overlapping(int from, int to) const;
    bool spliceIn(const std::vector<CutPiece>& pieces, RowProgress& progress);

    SegmentList m_Segments;
    // Owns every segment that was ever in the list.
    std::vector<std::unique_ptr<CutSegment>> m_Owned;
};

/// The rows between which a segment can be moved without leaving a neighbour behind: from the
/// start of the one on its left, or row 0, to the end of the one on its right, or the number of
/// rows. None for a segment not in the list or alone in it.
std::optional<RowSpan> ResizeLimits(const CutCollection& cuts, const CutSegment* segment, int rows);
