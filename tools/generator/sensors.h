#pragma once

#include "bird.h"
#include <optional>

/// A vector given north, east, down, as it stands in a body's own frame: forward, right, down.
Vector3 IntoBody(const Vector3& world, double heading, double pitch, double roll);

/// What the logger on the bird's back reads at one time.
struct Reading {
    /// g; a level bird at rest reads -1 on z.
    Vector3 acceleration;
    /// Microtesla, with the logger's own field and distortion in it.
    Vector3 compass;
    /// Metres.
    double depth = 0;
    /// Degrees Celsius.
    double temperature = 0;
};

/// The earth's field where the bird lives, in microtesla: north, east, down.
Vector3 EarthField();
/// The logger's distortion of a field in the body frame: stretched, sheared and shifted.
Vector3 DistortField(const Vector3& field);

class Logger
{
public:
    Logger(Random& random, double rate) : m_Random(random), m_Step(1 / rate) {}
    Reading Read(const Moment& moment);

private:
    Vector3 noise(double deviation);

    Random& m_Random;
    double m_Step;
    double m_Temperature = 11;
};

struct GpsFix {
    /// Metres.
    double north = 0;
    double east = 0;
    double altitude = 0;
    /// The receiver's own estimate, metres.
    double accuracy = 0;
    /// Metres per second.
    double speed = 0;
    int satellites = 0;
};

/// A receiver that tries for a fix every few seconds and has none under water, nor in the first
/// seconds after.
class GpsReceiver
{
public:
    explicit GpsReceiver(Random& random);
    /// To be asked once a second.
    std::optional<GpsFix> Fix(const Moment& moment);

private:
    static constexpr int INTERVAL = 5; // seconds
    static constexpr int SEARCH = 4;

    Random& m_Random;
    Wander m_North;
    Wander m_East;
    Wander m_Up;
    int m_Second = 0;
    int m_SecondsAtSurface = SEARCH;
};
