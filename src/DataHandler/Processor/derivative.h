#pragma once

#include "derivedcolumn.h"

/// The differences from each row to the next, in the unit of the attribute per row: one value
/// less than rows, none for an empty data set.
DataColumn ForwardDifferences(const DataSet& data, int attribute);

/// Appends 0 to the first row, then the forward differences from the first row on. The first row
/// so gets two values and the last row none: a column added later sits one place off in these two
/// rows.
void AppendDerivative(DataSet& data, DataColumn&& differences);
