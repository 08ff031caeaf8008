#pragma once

#include "timeaxis.h"
#include <cmath>

/// Compressed at both ends and stretched around the middle, with a steep step at the centre.
///
/// ToIndex stays that of the linear axis, so the pair is not inverse: a click on such an axis is
/// read as if it were linear.
class SlittedAxis : public TimeAxis
{
public:
    float ToPixel(int index) const override { return float(ToExactPixel(index)); }
    double ToExactPixel(int index) const override
    {
        const double half = m_LastIndex * 0.5;
        const double halfWidth = double(float(width())) * 0.5;
        if (index < half)
            return double(index) * index / (half * half) * halfWidth;
        const double root = std::sqrt(half);
        const double divisor = root > 0 ? root : 1.0;
        return std::sqrt(index - half) / divisor * halfWidth + halfWidth;
    }
};
