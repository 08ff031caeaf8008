#pragma once

#include "fftplan.h"

/// Real values to the lower half of their spectrum, with sign -1 and without a factor.
class RealToComplexFft : public FftPlan
{
public:
    /// Plans for a transform of length values, at least 1, from real to spectrum; see FftPlan.
    RealToComplexFft(int length, double* real, std::complex<double>* spectrum)
        : FftPlan(TO_SPECTRUM, length, real, spectrum)
    {
    }

    /// The arrays are those of the constructor, or others that are aligned alike and in place or
    /// not as those are. Keeps real, unless in place.
    void Transform(double* real, std::complex<double>* spectrum) const { execute(real, spectrum); }
};
