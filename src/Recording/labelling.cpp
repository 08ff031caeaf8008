#include "labelling.h"

#include "cutcollection.h"
#include "grouppalette.h"
#include "labelcollection.h"
#include "labelsegment.h"
#include <QLoggingCategory>
#include <QSet>

namespace
{

Q_LOGGING_CATEGORY(lcLabelling, "skerrymoor.labelling", QtWarningMsg)

} // namespace

SegmentRecord Labelling::record(const CutSegment& segment) const
{
    SegmentRecord record;
    record.m_Ends = segment.GetEnds();
    record.m_IsListed = m_Cuts && m_Cuts->Contains(&segment);
    record.m_State = segment.GetState();
    record.m_Color = segment.GetColor();
    const std::vector<BehaviorLabel*> owners = ownersOf(&segment);
    if (!owners.empty()) {
        record.m_Behavior = owners.front();
        record.m_Place = owners.front()->FindInstance(&segment);
    }
    return record;
}

std::vector<BehaviorLabel*> Labelling::ownersOf(const CutSegment* segment) const
{
    std::vector<BehaviorLabel*> owners;
    for (int i = 0; m_Labels && i < m_Labels->GetLabelCount(); ++i) {
        if (m_Labels->GetLabel(i)->Contains(segment))
            owners.push_back(m_Labels->GetLabel(i));
    }
    return owners;
}

bool Labelling::isOurs(const BehaviorLabel& behavior) const
{
    return m_Labels && m_Labels->IndexOf(&behavior) != -1;
}

LabelChange Labelling::AddBehavior(const QString& name)
{
    LabelChange change;
    if (!m_Labels)
        return change;
    auto* behavior = new BehaviorLabel(name, GroupColor(m_Labels->GetAddedCount()));
    m_Labels->AddLabel(behavior);
    change.m_Behaviors.push_back({behavior, -1, m_Labels->GetLabelCount() - 1, name, name});
    return change;
}

LabelChange Labelling::RenameBehavior(BehaviorLabel& behavior, const QString& name)
{
    LabelChange change;
    if (!isOurs(behavior) || behavior.GetName() == name)
        return change;
    const int index = m_Labels->IndexOf(&behavior);
    change.m_Behaviors.push_back({&behavior, index, index, behavior.GetName(), name});
    behavior.SetName(name);
    return change;
}

LabelChange Labelling::RemoveBehavior(BehaviorLabel& behavior)
{
    LabelChange change;
    if (!isOurs(behavior))
        return change;
    for (int i = 0; i < behavior.GetInstanceCount(); ++i) {
        CutSegment* segment = behavior.GetInstance(i)->GetSegment();
        change.m_Segments.push_back({segment, record(*segment), {}});
        segment->SetState(CutSegment::SEGMENT_CUT);
    }
    const int index = m_Labels->IndexOf(&behavior);
    m_Labels->RemoveLabel(&behavior);
    change.m_Behaviors.push_back({&behavior, index, -1, behavior.GetName(), behavior.GetName()});
    recordAfter(change);
    return change;
}

LabelChange Labelling::Label(CutSegment* segment, BehaviorLabel& behavior, Telling telling)
{
    return LabelAll({segment}, behavior, telling);
}

LabelChange Labelling::LabelAll(const QList<CutSegment*>& segments, BehaviorLabel& behavior,
                                Telling telling)
{
    LabelChange change;
    if (!isOurs(behavior)) {
        change.m_Refused = segments;
        return change;
    }
    QList<LabelInstance*> instances;
    QSet<CutSegment*> seen;
    for (CutSegment* segment : segments) {
        if (seen.contains(segment) || behavior.Contains(segment))
            continue;
        seen.insert(segment);
        change.m_Segments.push_back({segment, record(*segment), {}});
        release(segment, telling & TELL_OLD);
        instances.append(MakeInstance(behavior, segment));
    }
    addInstances(behavior, instances, telling & TELL_NEW);
    recordAfter(change);
    return change;
}

void Labelling::addInstances(BehaviorLabel& behavior, const QList<LabelInstance*>& instances,
                             bool isTold)
{
    if (instances.size() > 1 && isTold) {
        behavior.AddLabels(instances);
        return;
    }
    for (LabelInstance* instance : instances)
        isTold ? behavior.AddLabel(instance) : behavior.AddLabelQuietly(instance);
}

void Labelling::recordAfter(LabelChange& change) const
{
    for (SegmentChange& segment : change.m_Segments)
        segment.m_After = record(*segment.m_Segment);
}

void Labelling::release(CutSegment* segment, bool isTold)
{
    for (BehaviorLabel* owner : ownersOf(segment))
        removeInstances(*owner, segment, isTold);
    segment->SetState(CutSegment::SEGMENT_CUT);
}

void Labelling::removeInstances(BehaviorLabel& behavior, CutSegment* segment, bool isTold)
{
    while (isTold ? behavior.RemoveLabel(segment) : behavior.RemoveLabelQuietly(segment)) {
    }
}

LabelChange Labelling::Unlabel(const QList<CutSegment*>& segments, Telling telling)
{
    LabelChange change;
    for (CutSegment* segment : segments) {
        if (segment->GetState() != CutSegment::SEGMENT_LABELED && ownersOf(segment).empty())
            continue;
        change.m_Segments.push_back({segment, record(*segment), {}});
        release(segment, telling & TELL_OLD);
        change.m_Segments.back().m_After = record(*segment);
    }
    return change;
}

LabelChange Labelling::UnlabelFrom(BehaviorLabel& behavior, const QList<CutSegment*>& segments,
                                   Telling telling)
{
    LabelChange change;
    for (CutSegment* segment : segments) {
        if (!behavior.Contains(segment))
            continue;
        change.m_Segments.push_back({segment, record(*segment), {}});
        removeInstances(behavior, segment, telling & TELL_OLD);
        if (ownersOf(segment).empty())
            segment->SetState(CutSegment::SEGMENT_CUT);
        change.m_Segments.back().m_After = record(*segment);
    }
    return change;
}

QList<CutSegment*> Labelling::GetCandidates() const
{
    QList<CutSegment*> candidates;
    for (int i = 0; m_Cuts && i < m_Cuts->GetSegmentCount(); ++i) {
        if (m_Cuts->GetSegment(i)->GetState() == CutSegment::SEGMENT_RESULT)
            candidates.append(m_Cuts->GetSegment(i));
    }
    return candidates;
}

LabelChange Labelling::Reject(const QList<CutSegment*>& candidates)
{
    LabelChange change;
    QList<CutSegment*> waiting;
    for (CutSegment* candidate : candidates) {
        if (candidate->GetState() == CutSegment::SEGMENT_RESULT && m_Cuts &&
            m_Cuts->Contains(candidate))
            waiting.append(candidate);
    }
    // One that cannot go may do so when its neighbour has. To and fro, or each pass would take no
    // more than the last of a row that touch.
    for (bool hasGone = true; hasGone && !waiting.isEmpty();) {
        QList<CutSegment*> left;
        for (CutSegment* candidate : qAsConst(waiting)) {
            if (!giveAway(candidate, change) && m_Cuts->Contains(candidate))
                left.prepend(candidate);
        }
        hasGone = left.size() < waiting.size();
        waiting = left;
    }
    for (CutSegment* candidate : qAsConst(waiting)) {
        change.m_Segments.push_back({candidate, record(*candidate), {}});
        candidate->SetState(CutSegment::SEGMENT_CUT);
        change.m_Segments.back().m_After = record(*candidate);
    }
    return change;
}

bool Labelling::giveAway(CutSegment* candidate, LabelChange& change)
{
    const SegmentRecord before = record(*candidate);
    const auto removal = m_Cuts->TakeOut(candidate);
    if (!removal)
        return false;
    const auto add = [&](CutSegment* segment, const SegmentEnds& ends, int index) {
        SegmentRecord old = record(*segment);
        old.m_Ends = ends;
        old.m_IsListed = true;
        old.m_Index = index;
        change.m_Segments.push_back({segment, old, record(*segment)});
    };
    if (removal->m_Right)
        add(removal->m_Right, removal->m_RightBefore, removal->m_RightIndex);
    if (removal->m_Left)
        add(removal->m_Left, removal->m_LeftBefore, -1);
    add(candidate, before.m_Ends, removal->m_Index);
    return true;
}

LabelChange Labelling::Import(const std::vector<LabelledSpans>& groups)
{
    LabelChange change;
    std::vector<QList<CutSegment*>> cut;
    for (const LabelledSpans& group : groups) {
        cut.emplace_back();
        for (const RowSpan& span : group.m_Spans) {
            if (CutSegment* segment = cutOut(span, change))
                cut.back().append(segment);
        }
    }
    for (size_t i = 0; i < groups.size(); ++i) {
        const LabelChange added = AddBehavior(groups[i].m_Name);
        if (added.IsEmpty()) {
            qCDebug(lcLabelling, "Behavior label null");
            continue;
        }
        change.Append(added);
        for (CutSegment* segment : qAsConst(cut[i]))
            change.Append(Label(segment, *added.m_Behaviors.front().m_Behavior));
    }
    return change;
}

CutSegment* Labelling::cutOut(const RowSpan& span, LabelChange& change)
{
    CutSegment* cut =
        m_Cuts ? m_Cuts->InsertCut(span.m_From, span.m_To, CutSegment::SEGMENT_CUT) : nullptr;
    if (!cut) {
        qCDebug(lcLabelling, "Cant insert segment");
        change.m_RefusedSpans.push_back(span);
        return nullptr;
    }
    const int index = m_Cuts->IndexOf(cut);
    const auto addNew = [&](int place) {
        CutSegment* segment = m_Cuts->GetSegment(place);
        SegmentRecord after = record(*segment);
        after.m_Index = place;
        change.m_Segments.push_back({segment, {}, after});
    };
    // The very first segment of all stands alone.
    if (index > 0) {
        CutSegment* holder = m_Cuts->GetSegment(index - 1);
        CutSegment* rest = m_Cuts->GetSegment(index + 1);
        SegmentRecord before = record(*holder);
        before.m_Ends.m_To = rest->GetTo();
        change.m_Segments.push_back({holder, before, record(*holder)});
        addNew(index + 1);
    }
    addNew(index);
    return cut;
}
