#pragma once

#include "fftplan.h"

/// The way back from the lower half of a spectrum to real values, without a factor: values times
/// GetScale are those that RealToComplexFft started from.
class ComplexToRealFft : public FftPlan
{
public:
    /// Plans for a transform to length values, at least 1, from spectrum to real; see FftPlan.
    ComplexToRealFft(int length, std::complex<double>* spectrum, double* real)
        : FftPlan(TO_VALUES, length, real, spectrum)
    {
    }

    /// The arrays are those of the constructor, or others that are aligned alike and in place or
    /// not as those are. Destroys spectrum.
    void Transform(std::complex<double>* spectrum, double* real) const { execute(real, spectrum); }
    double GetScale() const { return 1.0 / GetLength(); }
};
