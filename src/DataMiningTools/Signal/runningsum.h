#pragma once

/// A sum in single precision, each step of which is taken in double.
class RunningSum
{
public:
    void Add(double value) { m_Sum = float(double(m_Sum) + value); }
    void Subtract(double value) { m_Sum = float(double(m_Sum) - value); }
    void HoldAtZero() { m_Sum = m_Sum < 0.0F ? 0.0F : m_Sum; }
    float Get() const { return m_Sum; }

private:
    float m_Sum = 0.0F;
};
