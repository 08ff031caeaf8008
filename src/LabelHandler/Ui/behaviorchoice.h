#pragma once

class BehaviorLabel;
class LabelCollection;
class QWidget;

/// Asks the user which behaviour segments shall move into. Null when the question is cancelled,
/// there is no behaviour at all, which the user is told, or the parent went away meanwhile.
BehaviorLabel* AskForBehavior(const LabelCollection* labels, QWidget* parent);

/// False, after telling the user, when there is no behaviour to move segments into.
bool CheckBehaviors(const LabelCollection* labels, QWidget* parent);
