#pragma once

class BehaviorLabel;
class CutSegment;
class LabelInstance;

/// Gives a segment the labelled state and the behaviour's colour, and makes the instance that
/// the caller then adds to the behaviour.
LabelInstance* MakeInstance(const BehaviorLabel& label, CutSegment* segment);

/// Makes a segment an instance of a behaviour, which tells its views.
void LabelSegment(BehaviorLabel& label, CutSegment* segment);
