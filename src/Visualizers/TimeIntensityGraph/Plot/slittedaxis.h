#pragma once

#include "timeaxis.h"

/// Compressed at both ends and stretched around the middle, with a steep step at the centre.
///
/// ToIndex stays that of the linear axis, so the pair is not inverse: a click on such an axis is
/// read as if it were linear.
class SlittedAxis : public TimeAxis
{
public:
    float ToPixel(int index) const override;
    double ToExactPixel(int index) const override;
};
