#pragma once

#include <functional>

class RowWindow;

/// Takes the confidences of count windows, the first of which starts at value first.
using ConfidenceSink = std::function<void(int first, const float* confidences, int count)>;

/// The correlation of a signal with each window of the rows, fast normalised cross-correlation
/// (Lewis 1995) with the running mean and root mean square of RunningNormalization. Handed to sink
/// in order.
///
/// filter: the signal without its mean; 1 <= filterLength <= length of rows. deviation: of the
/// signal. Where its product with the root mean square is 0 the correlation is only divided by
/// the length.
void CorrelateNormalized(RowWindow& rows, const double* filter, int filterLength, float deviation,
                         const ConfidenceSink& sink);
