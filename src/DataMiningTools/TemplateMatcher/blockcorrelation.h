#pragma once

/// Cross-correlation of long data with a filter, 1 <= filterLength <= dataLength, block by block
/// of the data, so that the length of the transforms does not depend on that of the data and
/// stays in the processor's cache.
///
/// results[s + (filterLength - 1) / 2] becomes the sum of data[s + j] * filter[j] over j, for
/// every s where the filter lies in the data. Other results stay as they are.
void CorrelateByBlocks(const double* data, int dataLength, const double* filter, int filterLength,
                       float* results);
