#pragma once

#include <cstdint>
#include <random>

/// Sine and cosine of an angle in degrees, good to 1e-11. Made of additions and multiplications
/// alone, so that every machine gives the same bits; the library's functions do not.
double SinDegrees(double degrees);
double CosDegrees(double degrees);

/// The angle plus or minus full turns, at least from and below from + 360.
double WrapDegrees(double degrees, double from);

struct Vector3 {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// Random numbers that are the same on every machine for one seed.
class Random
{
public:
    explicit Random(std::uint64_t seed) : m_Engine(seed) {}

    double Uniform(double from, double to);
    /// About normal, mean 0 and standard deviation 1, never beyond 3.5.
    double Gauss();

private:
    std::mt19937_64 m_Engine;
};

/// A value that wanders about 0 with standard deviation 1 and forgets itself within a time.
class Wander
{
public:
    /// memory and step in seconds.
    Wander(double memory, double step);
    double Step(Random& random);
    double Value() const { return m_Value; }

private:
    double m_Keep;
    double m_Push;
    double m_Value = 0;
};
