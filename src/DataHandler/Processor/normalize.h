#pragma once

#include "derivedcolumn.h"

/// The column less its mean, divided by its population standard deviation: mean 0, deviation 1,
/// no unit. Equal values, and any value that is not finite, give not-a-number in every row.
DataColumn Normalize(ConstSpan<double> values);

/// The three columns X, Y, Z of the vector divided by its length in each row, computed in single
/// precision. A zero vector gives not-a-number.
std::vector<DataColumn> NormalizeVector(const DataSet& data, const VectorAttributes& vector);
