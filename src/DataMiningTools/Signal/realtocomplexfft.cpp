#include "realtocomplexfft.h"

#include <fftw3.h>

RealToComplexFft::RealToComplexFft(int length, double* real, std::complex<double>* spectrum)
    : FftPlan({-1, fftw_plan_dft_r2c_1d, fftw_execute_dft_r2c}, length, real, spectrum)
{
}
