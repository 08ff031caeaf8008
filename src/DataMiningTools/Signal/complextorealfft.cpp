#include "complextorealfft.h"

#include <fftw3.h>

namespace
{

fftw_plan makeBackwardPlan(int length, double* real, fftw_complex* spectrum, unsigned effort)
{
    return fftw_plan_dft_c2r_1d(length, spectrum, real, effort);
}

void runBackward(fftw_plan plan, double* real, fftw_complex* spectrum)
{
    fftw_execute_dft_c2r(plan, spectrum, real);
}

} // namespace

ComplexToRealFft::ComplexToRealFft(int length, std::complex<double>* spectrum, double* real)
    : FftPlan({1, makeBackwardPlan, runBackward}, length, real, spectrum)
{
}
