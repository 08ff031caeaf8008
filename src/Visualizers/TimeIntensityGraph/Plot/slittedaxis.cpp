#include "slittedaxis.h"

#include <cmath>

float SlittedAxis::ToPixel(int index) const
{
    return float(ToExactPixel(index));
}

double SlittedAxis::ToExactPixel(int index) const
{
    const double half = m_LastIndex * 0.5;
    const double halfWidth = double(float(width())) * 0.5;
    if (index < half)
        return double(index) * index / (half * half) * halfWidth;
    const double root = std::sqrt(half);
    const double divisor = root > 0 ? root : 1.0;
    return std::sqrt(index - half) / divisor * halfWidth + halfWidth;
}
