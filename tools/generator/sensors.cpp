#include "sensors.h"

#include <cmath>

namespace
{
// North of Scotland.
constexpr double FIELD = 50.7;       // microtesla
constexpr double INCLINATION = 72.4; // degrees
constexpr double DECLINATION = -1.7;
} // namespace

Vector3 IntoBody(const Vector3& world, double heading, double pitch, double roll)
{
    const double ch = CosDegrees(heading), sh = SinDegrees(heading);
    const double cp = CosDegrees(pitch), sp = SinDegrees(pitch);
    const double cr = CosDegrees(roll), sr = SinDegrees(roll);
    const double ahead = ch * world.x + sh * world.y;
    const double aside = ch * world.y - sh * world.x;
    const double below = sp * ahead + cp * world.z;
    return {cp * ahead - sp * world.z, cr * aside + sr * below, cr * below - sr * aside};
}

Vector3 EarthField()
{
    const double level = FIELD * CosDegrees(INCLINATION);
    return {level * CosDegrees(DECLINATION), level * SinDegrees(DECLINATION),
            FIELD * SinDegrees(INCLINATION)};
}

Vector3 DistortField(const Vector3& f)
{
    return {1.14 * f.x + 0.04 * f.y - 0.02 * f.z + 16.5, 0.04 * f.x + 0.91 * f.y + 0.03 * f.z - 9.2,
            -0.02 * f.x + 0.03 * f.y + 1.05 * f.z + 5.8};
}

Vector3 Logger::noise(double deviation)
{
    // A braced list is evaluated from left to right, so the numbers keep their places.
    return {deviation * m_Random.Gauss(), deviation * m_Random.Gauss(),
            deviation * m_Random.Gauss()};
}

Reading Logger::Read(const Moment& moment)
{
    Reading reading;
    const Vector3 down = IntoBody({0, 0, 1}, moment.heading, moment.pitch, moment.roll);
    const Vector3 hiss = noise(0.01);
    const Vector3& shake = moment.shake;
    reading.acceleration = {shake.x + hiss.x - down.x, shake.y + hiss.y - down.y,
                            shake.z + hiss.z - down.z};

    const Vector3 field = IntoBody(EarthField(), moment.heading, moment.pitch, moment.roll);
    const Vector3 hum = noise(0.3);
    reading.compass = DistortField({field.x + hum.x, field.y + hum.y, field.z + hum.z});

    reading.depth = moment.depth + 0.03 * m_Random.Gauss();
    const bool flying = moment.behaviour == Behaviour::Fly;
    const double outside = flying ? 8.5 : 11.4 - 0.06 * moment.depth;
    m_Temperature += (outside - m_Temperature) * m_Step / 15;
    reading.temperature = m_Temperature + 0.02 * m_Random.Gauss();
    return reading;
}

GpsReceiver::GpsReceiver(Random& random)
    : m_Random(random), m_North(40, 1), m_East(40, 1), m_Up(40, 1)
{
}

std::optional<GpsFix> GpsReceiver::Fix(const Moment& moment)
{
    for (Wander* error : {&m_North, &m_East, &m_Up})
        error->Step(m_Random);
    m_SecondsAtSurface = moment.depth > 0.3 ? 0 : m_SecondsAtSurface + 1;
    if (m_Second++ % INTERVAL != 0 || m_SecondsAtSurface < SEARCH)
        return {};

    // Now and then a fix is made from few satellites, and poor.
    const bool poor = m_Random.Uniform(0, 1) < 0.03;
    GpsFix fix;
    fix.accuracy = poor ? m_Random.Uniform(12, 25) : m_Random.Uniform(2.5, 6);
    const double scale = 0.6 * fix.accuracy;
    fix.north = moment.north + scale * (m_North.Value() + 0.3 * m_Random.Gauss());
    fix.east = moment.east + scale * (m_East.Value() + 0.3 * m_Random.Gauss());
    fix.altitude = moment.altitude + 1.5 * scale * m_Up.Value();
    fix.speed = std::abs(moment.speed + 0.2 * m_Random.Gauss());
    fix.satellites = poor ? 4 : int(m_Random.Uniform(6, 12));
    return fix;
}
