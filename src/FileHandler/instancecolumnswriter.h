#pragma once

#include "progress.h"

class BehaviorLabel;
class DataSet;

/// Writes one attribute of a behaviour's instances side by side: a column per instance, as many
/// lines as the longest has rows. Shorter instances carry on as 0 to the end. False, and an old
/// file as it was, when the file could not be written or the progress asked to stop. attribute must
/// exist.
bool WriteInstanceColumns(const QString& path, const DataSet& data, const BehaviorLabel& behavior,
                          int attribute, Progress* progress = &NoProgress::Shared());
