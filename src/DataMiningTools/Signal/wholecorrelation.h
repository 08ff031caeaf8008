#pragma once

#include <QLoggingCategory>

/// Traces of searches: how long their stages take.
Q_DECLARE_LOGGING_CATEGORY(lcMatcher)

/// Cross-correlation of data with a filter, 1 <= filterLength <= dataLength, in one transform of
/// all data, of length dataLength + filterLength - 1 whatever the factors of that number. Plain,
/// and what CorrelateByBlocks has to agree with.
///
/// results[s + (filterLength - 1) / 2] becomes the sum of data[s + j] * filter[j] over j, for
/// every s where the filter lies in the data. Other results stay as they are.
void CorrelateWhole(const double* data, int dataLength, const double* filter, int filterLength,
                    float* results);
