#pragma once

#include <limits>

/// A sum in single precision, each step of which is taken in double.
class RunningSum
{
public:
    /// A sum that is held at lowest whenever a window has slid and it would be less.
    explicit RunningSum(float lowest = -std::numeric_limits<float>::infinity()) : m_Lowest(lowest)
    {
    }

    void Add(double value) { m_Sum = float(double(m_Sum) + value); }
    /// Takes off the value that leaves a window, and then adds the one that enters.
    float Slide(double leaving, double entering)
    {
        m_Sum = After(m_Sum, leaving, entering);
        return m_Sum = m_Sum < m_Lowest ? m_Lowest : m_Sum;
    }
    float Get() const { return m_Sum; }
    void Set(float sum) { m_Sum = sum; }
    float GetLowest() const { return m_Lowest; }

    /// What a sum becomes when a window slides.
    static float After(float sum, double leaving, double entering)
    {
        return float(double(float(double(sum) - leaving)) + entering);
    }

private:
    float m_Sum = 0.0F;
    float m_Lowest;
};
