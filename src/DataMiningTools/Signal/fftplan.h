#pragma once

#include <complex>
#include <memory>

struct fftw_plan_s;

/// A prepared Fourier transform of one length between real values and the lower half of their
/// spectrum, length / 2 + 1 complex values. Base of the two directions; the work is done by FFTW
/// (Frigo and Johnson 2005).
///
/// Plans are made on the main thread. Before the first one, what the library has learnt in
/// earlier runs is read from "wisdom3.txt" in the working directory; it is written back after
/// each plan. A file that cannot be read or written is passed over.
class FftPlan
{
public:
    /// The least effort that the planner knows: it estimates, and does not measure.
    static constexpr unsigned EstimateEffort = 64;

    FftPlan(const FftPlan&) = delete;
    FftPlan& operator=(const FftPlan&) = delete;

    /// How many threads plans may use that are made from now on, by the whole process. Above 1,
    /// the first plan of its kind and length tries whether threads pay, which takes 0.2 seconds.
    static void SetThreadCount(int count);
    /// FFTW's planner flags for plans that are made from now on.
    static void SetPlannerEffort(unsigned effort);

    int GetLength() const { return m_Length; }
    /// The number of complex values, length / 2 + 1.
    int GetSpectrumLength() const { return m_Length / 2 + 1; }
    /// The sign in the exponent.
    int GetSign() const { return m_Direction; }
    /// How many threads the plan uses.
    int GetThreadCount() const { return m_ThreadCount; }

protected:
    /// By the sign in the exponent.
    enum Direction { TO_SPECTRUM = -1, TO_VALUES = 1 };

    /// Plans for these two arrays, or for others that are aligned alike. Planning may write to
    /// them. Both may start at the same place, for a transform in place. Ends the program when
    /// there is no plan.
    FftPlan(Direction direction, int length, double* real, std::complex<double>* spectrum);
    ~FftPlan() = default;

    /// Ends the program for arrays that the plan was not made for.
    void execute(double* real, std::complex<double>* spectrum) const;

private:
    struct Destroy {
        void operator()(fftw_plan_s* plan) const;
    };
    using Plan = std::unique_ptr<fftw_plan_s, Destroy>;
    struct RunTime {
        double mean;
        double deviation;
    };

    Plan choosePlan(double* real, std::complex<double>* spectrum);
    Plan makePlan(int threads, double* real, std::complex<double>* spectrum);
    RunTime measure(const Plan& plan, double* real, std::complex<double>* spectrum) const;
    void run(const Plan& plan, double* real, std::complex<double>* spectrum) const;

    static int s_ThreadCount;
    static unsigned s_PlannerEffort;

    Direction m_Direction;
    int m_Length;
    bool m_IsInPlace;
    bool m_IsAligned;
    int m_ThreadCount = 1;
    Plan m_Plan;
};
