#pragma once

#include <QString>
#include <memory>

class DataSet;
class GroundTruithBehaviorCollection;
class QWidget;

/// Asks for a file of labels, one kind of which is named by filter, and reads it over the rows of a
/// data set. Null when the user cancels and, with a trace, when the file cannot be read.
std::unique_ptr<GroundTruithBehaviorCollection> ReadLabels(QWidget* parent, DataSet* dataSet,
                                                           const QString& filter);
