#pragma once

#include "runningsum.h"

/// Two running sums that slide over their data at the same time, many steps at once.
///
/// Each step has to wait for the rounding of the one before. So the steps are guessed first: in
/// plain single precision, on values that are rounded to odd, which the rounding of the sum does
/// not notice as long as the sum is a few times larger than the value (Boldo and Melquiond 2008,
/// Emulation of a FMA and correctly rounded sums). Then each step is taken once more, as
/// RunningSum takes it, from the guess of the one before, many at a time as none needs another:
/// as far as each of them gives the next guess, all are right. Where one does not, some steps are
/// taken one by one.
class RunningSumPair
{
public:
    /// The most steps that can be taken at once.
    static constexpr int MaximumSteps = 128;

    /// The data that leaves and enters, step by step, and what the sum is behind each.
    struct Steps {
        const double* m_Leaving;
        const double* m_Entering;
        float* m_Sums;

        Steps Behind(int count) const
        {
            return {m_Leaving + count, m_Entering + count, m_Sums + count};
        }
    };

    RunningSumPair(const RunningSum& first, const RunningSum& second)
        : m_First(first), m_Second(second)
    {
    }

    RunningSum& GetFirst() { return m_First; }
    RunningSum& GetSecond() { return m_Second; }
    /// Takes count steps with each, count at most MaximumSteps.
    void Slide(const Steps& first, const Steps& second, int count);

private:
    void slideFew(const Steps& first, const Steps& second, int count);
    void slideOneByOne(const Steps& first, const Steps& second, int count);

    RunningSum m_First;
    RunningSum m_Second;
    // Where guesses keep being wrong, as in noise around 0, they are made less often.
    int m_StretchesToPass = 0;
    int m_LastPass = 0;
};
