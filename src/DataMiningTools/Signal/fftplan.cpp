#include "fftplan.h"

#include "alignedarray.h"
#include <QElapsedTimer>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fftw3.h>
#include <iostream>
#include <map>
#include <omp.h>
#include <tuple>

namespace
{

constexpr const char* wisdomPath = "wisdom3.txt";

/// Readies the library and reads the wisdom, the first time only.
void prepareLibrary()
{
    static const bool isReady = [] {
        fftw_init_threads();
        fftw_import_wisdom_from_filename(wisdomPath);
        return true;
    }();
    Q_UNUSED(isReady)
}

bool isAligned(const void* address)
{
    return reinterpret_cast<std::uintptr_t>(address) % AlignedArray<double>::DefaultAlignment == 0;
}

bool areAligned(const double* real, const std::complex<double>* spectrum)
{
    return isAligned(real) && isAligned(spectrum);
}

fftw_complex* toLibrary(std::complex<double>* spectrum)
{
    return reinterpret_cast<fftw_complex*>(spectrum);
}

bool areSame(const double* real, const std::complex<double>* spectrum)
{
    return static_cast<const void*>(real) == static_cast<const void*>(spectrum);
}

} // namespace

int FftPlan::s_ThreadCount = 1;
unsigned FftPlan::s_PlannerEffort = FftPlan::EstimateEffort;

static_assert(FftPlan::EstimateEffort == FFTW_ESTIMATE);

void FftPlan::Destroy::operator()(fftw_plan_s* plan) const
{
    fftw_destroy_plan(plan);
}

void FftPlan::SetThreadCount(int count)
{
    s_ThreadCount = count;
}

void FftPlan::SetPlannerEffort(unsigned effort)
{
    s_PlannerEffort = effort;
}

FftPlan::FftPlan(Direction direction, int length, double* real, std::complex<double>* spectrum)
    : m_Direction(direction), m_Length(length), m_IsInPlace(areSame(real, spectrum)),
      m_IsAligned(areAligned(real, spectrum))
{
    prepareLibrary();
    m_Plan = choosePlan(real, spectrum);
    fftw_export_wisdom_to_filename(wisdomPath);
}

FftPlan::Plan FftPlan::choosePlan(double* real, std::complex<double>* spectrum)
{
    const int threads = std::min(s_ThreadCount, omp_get_max_threads());
    if (threads <= 1)
        return makePlan(1, real, spectrum);
    // What was found for a length holds for the run, so that a repeated search does not measure.
    static std::map<std::tuple<int, int, bool, int>, int> found;
    const auto [best, isNew] =
        found.try_emplace({m_Direction, m_Length, m_IsInPlace, threads}, threads);
    if (!isNew)
        return makePlan(best->second, real, spectrum);

    Plan single = makePlan(1, real, spectrum);
    const RunTime singleTime = measure(single, real, spectrum);
    Plan threaded = makePlan(threads, real, spectrum);
    if (measure(threaded, real, spectrum).mean <= singleTime.mean - singleTime.deviation)
        return threaded;
    best->second = m_ThreadCount = 1;
    return single;
}

FftPlan::Plan FftPlan::makePlan(int threads, double* real, std::complex<double>* spectrum)
{
    fftw_plan_with_nthreads(threads);
    fftw_complex* complex = toLibrary(spectrum);
    Plan plan(m_Direction == TO_SPECTRUM
                  ? fftw_plan_dft_r2c_1d(m_Length, real, complex, s_PlannerEffort)
                  : fftw_plan_dft_c2r_1d(m_Length, complex, real, s_PlannerEffort));
    if (!plan) {
        std::cerr << "Unable to construct FFTW plan" << std::endl;
        std::exit(1);
    }
    m_ThreadCount = threads;
    return plan;
}

FftPlan::RunTime FftPlan::measure(const Plan& plan, double* real,
                                  std::complex<double>* spectrum) const
{
    constexpr qint64 enough = 100'000'000;
    QElapsedTimer total;
    total.start();
    double sum = 0.0;
    double squares = 0.0;
    int runs = 0;
    do {
        QElapsedTimer timer;
        timer.start();
        run(plan, real, spectrum);
        const auto time = double(timer.nsecsElapsed());
        sum += time;
        squares += time * time;
        ++runs;
    } while (total.nsecsElapsed() < enough);
    const double mean = sum / runs;
    return {mean, std::sqrt(std::max(squares / runs - mean * mean, 0.0))};
}

void FftPlan::execute(double* real, std::complex<double>* spectrum) const
{
    if (areSame(real, spectrum) != m_IsInPlace || (m_IsAligned && !areAligned(real, spectrum))) {
        std::cerr << "ERROR: fft constructor and call must be both in place or both out of place"
                  << std::endl;
        std::exit(1);
    }
    run(m_Plan, real, spectrum);
}

void FftPlan::run(const Plan& plan, double* real, std::complex<double>* spectrum) const
{
    if (m_Direction == TO_SPECTRUM)
        fftw_execute_dft_r2c(plan.get(), real, toLibrary(spectrum));
    else
        fftw_execute_dft_c2r(plan.get(), toLibrary(spectrum), real);
}
