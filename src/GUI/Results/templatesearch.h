#pragma once

#include <memory>

class CutCollection;
class CutSegment;
class DataSet;
class LabelCollection;
class PatternsDataObject;
class QWidget;

/// Asks for a template of rows from up to to and stores it; null when the user cancels.
std::unique_ptr<PatternsDataObject> SaveTemplate(QWidget* parent, DataSet* data, int from, int to);

/// Stores rows as a template and searches the unlabelled segments for it. True when the user took
/// results over into the cuts.
bool SearchForRows(QWidget* parent, DataSet* data, CutCollection* cuts, int from, int to);

/// The three searches that ask for everything themselves; true when there are new results.
bool SearchTemplates(QWidget* parent, DataSet* data, CutCollection* cuts);
bool SearchThresholds(QWidget* parent, DataSet* data, CutCollection* cuts);
bool SearchRules(QWidget* parent, DataSet* data, CutCollection* cuts, LabelCollection* labels);
