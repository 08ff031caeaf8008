#include "runningsumpair.h"

#include "vectorclones.h"
#include <algorithm>
#include <cstdint>
#include <cstring>

namespace
{

using Steps = RunningSumPair::Steps;

/// How many steps are taken one by one after a wrong guess.
constexpr int few = 32;

/// The value with the last bit of a float set when it has more bits than a float.
inline float roundToOdd(double value)
{
    constexpr std::uint64_t below = 0x1FFFFFFF; // what a float has no room for
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    bits = (bits & ~below) | (((bits & below) + below) & (below + 1));
    double odd = 0.0;
    std::memcpy(&odd, &bits, sizeof odd);
    return float(odd);
}

/// Guesses of so many sums in a row.
template <int Count>
struct Guess {
    float m_Leaving[Count];
    float m_Entering[Count];
    // The first is the one that it starts from.
    float m_Sums[Count + 1];

    Guess(float start, const Steps& steps)
    {
        for (int i = 0; i < Count; ++i)
            m_Leaving[i] = roundToOdd(steps.m_Leaving[i]);
        for (int i = 0; i < Count; ++i)
            m_Entering[i] = roundToOdd(steps.m_Entering[i]);
        m_Sums[0] = start;
    }

    void Next(int i, float& sum)
    {
        sum -= m_Leaving[i];
        sum += m_Entering[i];
        m_Sums[i + 1] = sum;
    }

    /// Whether each step leads from the sum before it to the sum behind it.
    bool IsRight(const Steps& steps, float lowest) const
    {
        std::int32_t wrong = 0;
        for (int i = 0; i < Count; ++i) {
            const float sum = RunningSum::After(m_Sums[i], steps.m_Leaving[i], steps.m_Entering[i]);
            wrong |= !(sum == m_Sums[i + 1]);
            wrong |= !(sum >= lowest);
        }
        return wrong == 0;
    }

    float Keep(const Steps& steps) const
    {
        std::copy_n(m_Sums + 1, Count, steps.m_Sums);
        return m_Sums[Count];
    }
};

template <int Count>
inline bool slideByGuess(RunningSum& first, const Steps& firstSteps, RunningSum& second,
                         const Steps& secondSteps)
{
    Guess<Count> a(first.Get(), firstSteps);
    Guess<Count> b(second.Get(), secondSteps);
    float firstSum = first.Get();
    float secondSum = second.Get();
    // In one loop, so that they wait together.
    for (int i = 0; i < Count; ++i) {
        a.Next(i, firstSum);
        b.Next(i, secondSum);
    }
    if (!a.IsRight(firstSteps, first.GetLowest()) || !b.IsRight(secondSteps, second.GetLowest()))
        return false;
    first.Set(a.Keep(firstSteps));
    second.Set(b.Keep(secondSteps));
    return true;
}

SKERRYMOOR_VECTOR_CLONES
bool slideManyByGuess(RunningSum& first, const Steps& firstSteps, RunningSum& second,
                      const Steps& secondSteps)
{
    return slideByGuess<RunningSumPair::MaximumSteps>(first, firstSteps, second, secondSteps);
}

SKERRYMOOR_VECTOR_CLONES
bool slideFewByGuess(RunningSum& first, const Steps& firstSteps, RunningSum& second,
                     const Steps& secondSteps)
{
    return slideByGuess<few>(first, firstSteps, second, secondSteps);
}

} // namespace

void RunningSumPair::Slide(const Steps& first, const Steps& second, int count)
{
    if (count == MaximumSteps && m_StretchesToPass == 0 &&
        slideManyByGuess(m_First, first, m_Second, second))
        return;
    for (int done = 0; done < count; done += few)
        slideFew(first.Behind(done), second.Behind(done), std::min(few, count - done));
}

// A guess of many steps that was wrong is right for most of them, if looked at in parts.
void RunningSumPair::slideFew(const Steps& first, const Steps& second, int count)
{
    constexpr int longestPass = 63;
    const bool canGuess = count == few && m_StretchesToPass == 0;
    if (canGuess && slideFewByGuess(m_First, first, m_Second, second)) {
        m_LastPass = 0;
        return;
    }
    if (canGuess)
        m_StretchesToPass = m_LastPass = std::min(2 * m_LastPass + 1, longestPass);
    else if (m_StretchesToPass > 0)
        --m_StretchesToPass;
    slideOneByOne(first, second, count);
}

// In one loop, so that they wait together.
void RunningSumPair::slideOneByOne(const Steps& first, const Steps& second, int count)
{
    RunningSum a = m_First;
    RunningSum b = m_Second;
    for (int i = 0; i < count; ++i) {
        first.m_Sums[i] = a.Slide(first.m_Leaving[i], first.m_Entering[i]);
        second.m_Sums[i] = b.Slide(second.m_Leaving[i], second.m_Entering[i]);
    }
    m_First = a;
    m_Second = b;
}
