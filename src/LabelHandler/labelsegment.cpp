#include "labelsegment.h"

#include "behaviorlabel.h"
#include "cutsegment.h"

LabelInstance* MakeInstance(const BehaviorLabel& label, CutSegment* segment)
{
    segment->SetState(CutSegment::SEGMENT_LABELED);
    segment->SetColor(label.GetColor());
    return new LabelInstance(segment);
}

void LabelSegment(BehaviorLabel& label, CutSegment* segment)
{
    label.AddLabel(MakeInstance(label, segment));
}
