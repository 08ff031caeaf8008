#pragma once

#include "labelchange.h"

class CutCollection;
class LabelCollection;
class LabelInstance;

/// The rows that a file, or another source, gives to a behaviour.
struct LabelledSpans {
    QString m_Name;
    std::vector<RowSpan> m_Spans;
};

/// The rules that bind the segments of a recording to its behaviours: a segment has the labelled
/// state if and only if exactly one instance of exactly one behaviour stands for it.
///
/// Every operation keeps them, whatever is on the screen, and returns what it has changed: nothing
/// where there was nothing to do. Behaviours tell their listeners by their signals; who shows
/// anything else of the recording is told by the caller.
class Labelling
{
public:
    /// Which behaviours tell of instances that leave them or come to them. A view that has seen to
    /// it already asks for silence.
    enum Telling { TELL_NOBODY = 0, TELL_OLD = 1, TELL_NEW = 2, TELL_BOTH = 3 };

    /// Neither is owned; both may be null, and then hold nothing.
    Labelling(CutCollection* cuts, LabelCollection* labels) : m_Cuts(cuts), m_Labels(labels) {}

    /// Appends a behaviour in the next colour of the palette, also where the name is in use. Empty
    /// without a label collection.
    LabelChange AddBehavior(const QString& name);
    LabelChange RenameBehavior(BehaviorLabel& behavior, const QString& name);
    /// Takes a behaviour off the list; its segments become plain cuts. The behaviour keeps its
    /// instances, other windows may show it.
    LabelChange RemoveBehavior(BehaviorLabel& behavior);

    /// Makes a segment an instance of a behaviour, whatever it was: a plain cut, a candidate or an
    /// instance of another behaviour, which it leaves. Refused when the behaviour is none of the
    /// recording's.
    LabelChange Label(CutSegment* segment, BehaviorLabel& behavior, Telling telling = TELL_BOTH);
    /// The same for many, of which the behaviour tells in one signal.
    LabelChange LabelAll(const QList<CutSegment*>& segments, BehaviorLabel& behavior,
                         Telling telling = TELL_BOTH);
    /// Makes labelled segments plain cuts and takes them from their behaviours; others are passed
    /// over.
    LabelChange Unlabel(const QList<CutSegment*>& segments, Telling telling = TELL_BOTH);
    /// The same for the instances of one behaviour only.
    LabelChange UnlabelFrom(BehaviorLabel& behavior, const QList<CutSegment*>& segments,
                            Telling telling = TELL_BOTH);

    /// The segments that await a decision, in their order.
    QList<CutSegment*> GetCandidates() const;
    /// Gives the span of candidates to their neighbours; others are passed over. Where no
    /// neighbour can take it the candidate becomes a plain cut.
    LabelChange Reject(const QList<CutSegment*>& candidates);
    LabelChange RejectAll() { return Reject(GetCandidates()); }

    /// Cuts spans out of the recording and labels them, with one new behaviour for each name, also
    /// where that is in use. Spans that cross a boundary are refused.
    LabelChange Import(const std::vector<LabelledSpans>& groups);

private:
    SegmentRecord record(const CutSegment& segment) const;
    void recordAfter(LabelChange& change) const;
    std::vector<BehaviorLabel*> ownersOf(const CutSegment* segment) const;
    bool isOurs(const BehaviorLabel& behavior) const;
    void release(CutSegment* segment, bool isTold);
    static void removeInstances(BehaviorLabel& behavior, CutSegment* segment, bool isTold);
    static void addInstances(BehaviorLabel& behavior, const QList<LabelInstance*>& instances,
                             bool isTold);
    bool giveAway(CutSegment* candidate, LabelChange& change);
    CutSegment* cutOut(const RowSpan& span, LabelChange& change);

    CutCollection* m_Cuts;
    LabelCollection* m_Labels;
};
