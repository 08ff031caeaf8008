#pragma once

#include "constspan.h"

/// The lowest and highest value of a column in single precision, as a data set tells them.
///
/// Not-a-number counts for nothing. Both start from odd values: the highest from the smallest
/// positive float, so that a column without a positive value has that as its maximum and its value
/// axis reaches up to it.
struct ValueRange {
    static constexpr float StartMinimum = 3.4028235e38F;
    static constexpr float StartMaximum = 1.1754944e-38F;

    float m_Minimum = StartMinimum;
    float m_Maximum = StartMaximum;
};

/// The range that a walk over the values finds which narrows each value that is lower, or higher,
/// than the range so far.
ValueRange ComputeValueRange(ConstSpan<double> values);
