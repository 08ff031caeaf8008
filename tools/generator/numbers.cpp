#include "numbers.h"

#include <cmath>

namespace
{
constexpr double RADIANS = 3.14159265358979323846 / 180;
} // namespace

double WrapDegrees(double degrees, double from)
{
    return degrees - 360 * std::floor((degrees - from) / 360);
}

double SinDegrees(double degrees)
{
    double angle = WrapDegrees(degrees, -180);
    if (angle > 90)
        angle = 180 - angle;
    else if (angle < -90)
        angle = -180 - angle;
    const double x = angle * RADIANS;
    const double square = x * x;
    double sum = 1;
    for (int n = 16; n >= 2; n -= 2)
        sum = 1 - sum * square / (n * (n + 1));
    return x * sum;
}

double CosDegrees(double degrees)
{
    return SinDegrees(degrees + 90);
}

double Random::Uniform(double from, double to)
{
    // 53 bits fill a double's mantissa.
    const double unit = double(m_Engine() >> 11) / 9007199254740992.0;
    return from + (to - from) * unit;
}

double Random::Gauss()
{
    // The sum of four even numbers; the factor brings its standard deviation to 1.
    std::uint64_t bits = m_Engine();
    std::uint64_t sum = 0;
    for (int i = 0; i < 4; ++i, bits >>= 16)
        sum += bits & 0xffff;
    return (double(sum) / 65535 - 2) * 1.7320508075688772;
}

Wander::Wander(double memory, double step)
    : m_Keep(1 - step / memory), m_Push(std::sqrt(1 - m_Keep * m_Keep))
{
}

double Wander::Step(Random& random)
{
    m_Value = m_Value * m_Keep + m_Push * random.Gauss();
    return m_Value;
}
