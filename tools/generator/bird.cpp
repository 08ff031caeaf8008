#include "bird.h"

#include <algorithm>

namespace
{
constexpr double TAKE_OFF = 4; // seconds
constexpr double LANDING = 6;

// Metres per second that the water and the air carry the bird north and east.
constexpr double CURRENT[2] = {0.10, 0.22};
constexpr double WIND[2] = {-0.8, 1.9};

// Beats per second of wings and feet.
double beatsPerSecond(Behaviour behaviour)
{
    switch (behaviour) {
    case Behaviour::Preen:
        return 2.4;
    case Behaviour::Fly:
        return 5.6;
    case Behaviour::Descend:
        return 2.7;
    case Behaviour::Forage:
        return 1.5;
    case Behaviour::Ascend:
        return 2.0;
    default:
        return 1;
    }
}
} // namespace

Bird::Bird(Random& random, double rate)
    : m_Random(random), m_Step(1 / rate), m_Schedule(random), m_Fast(0.8, m_Step), m_Slow(6, m_Step)
{
    m_Phase = m_Schedule.Next();
}

const Moment& Bird::Step()
{
    if (phaseIsOver())
        startPhase();
    m_Fast.Step(m_Random);
    m_Slow.Step(m_Random);
    const double beats = beatsPerSecond(m_Phase.behaviour) * m_Tempo * (1 + 0.04 * m_Slow.Value());
    m_Beat = WrapDegrees(m_Beat + 360 * beats * m_Step, 0);

    m_Now.strike = false;
    follow(drive());
    move();
    m_Time += m_Step;
    m_PhaseTime += m_Step;
    return m_Now;
}

bool Bird::phaseIsOver() const
{
    switch (m_Phase.behaviour) {
    case Behaviour::Descend:
        return m_Now.depth >= m_Phase.depth - 0.5;
    case Behaviour::Ascend:
        return m_Now.depth <= 0;
    default:
        return m_PhaseTime >= m_Phase.seconds;
    }
}

void Bird::startPhase()
{
    m_Phase = m_Schedule.Next();
    m_PhaseTime = 0;
    m_Tempo = 1 + 0.05 * m_Random.Gauss();
    m_Vigour = 1 + 0.1 * m_Random.Gauss();
    m_Gliding = false;
    m_NextChange = m_Random.Uniform(8, 14);
    m_NextStrike = m_Random.Uniform(1, 5);
    m_StrikeLength = 0;
    m_Now.behaviour = m_Phase.behaviour;
}

Bird::Drive Bird::drive()
{
    switch (m_Phase.behaviour) {
    case Behaviour::Handling:
        return handle();
    case Behaviour::Rest:
        return rest();
    case Behaviour::Preen:
        return preen();
    case Behaviour::Fly:
        return fly();
    case Behaviour::Descend:
        return descend();
    case Behaviour::Forage:
        return forage();
    case Behaviour::Ascend:
        return ascend();
    }
    return {};
}

// Before its release the tag is turned about all axes, for the calibration of the compass.
Bird::Drive Bird::handle() const
{
    Drive drive;
    drive.turn = 41;
    drive.pitch = 78 * SinDegrees(53 * m_PhaseTime);
    drive.roll = 175 * SinDegrees(19 * m_PhaseTime);
    drive.delay = 0.2;
    drive.shake = {0.02 * m_Fast.Value(), 0.02 * m_Slow.Value(), -0.02 * m_Fast.Value()};
    return drive;
}

Bird::Drive Bird::rest() const
{
    const double swell = SinDegrees(83 * m_Time);
    const double chop = SinDegrees(140 * m_Time + 40) + 0.4 * m_Fast.Value();
    Drive drive;
    drive.pitch = 6 + 3 * swell;
    drive.roll = 5 * chop;
    drive.turn = 5 * m_Slow.Value();
    drive.speed = 0.1;
    drive.shake = {0.02 * chop, 0.02 * swell, 0.06 * swell + 0.02 * chop};
    return drive;
}

// The bird leans to one side and the other and tugs at its feathers in bursts.
Bird::Drive Bird::preen() const
{
    const double burst = SinDegrees(110 * m_PhaseTime) > -0.3 ? m_Vigour : 0.15;
    Drive drive;
    drive.pitch = 10 + 12 * SinDegrees(31 * m_PhaseTime) + 4 * burst * SinDegrees(m_Beat);
    drive.roll = 30 * SinDegrees(36 * m_PhaseTime);
    drive.turn = 12 * m_Slow.Value();
    drive.speed = 0.05;
    drive.shake = {0.24 * burst * SinDegrees(m_Beat), 0.16 * burst * SinDegrees(m_Beat + 70),
                   0.12 * burst * SinDegrees(2 * m_Beat)};
    return drive;
}

// Beats in bursts between short glides; the take-off is a patter over the water.
Bird::Drive Bird::fly()
{
    updateFlapping();
    const double left = m_Phase.seconds - m_PhaseTime;
    const bool takeOff = m_PhaseTime < TAKE_OFF;
    const double stroke =
        m_Vigour * m_Flapping * (takeOff ? 1.1 : 0.75) * (1 + 0.1 * m_Fast.Value());
    const double error = WrapDegrees(m_Phase.heading - m_Now.heading, -180);
    Drive drive;
    drive.turn = std::clamp(0.4 * error, -22.0, 22.0) + 3 * m_Slow.Value();
    drive.roll = 1.4 * drive.turn;
    drive.pitch = takeOff ? 20 : left < 3 ? 18 : 4 + 2 * m_Slow.Value();
    drive.speed = left < 2 ? 4 : 15 + m_Slow.Value();
    drive.altitude = left < LANDING ? 0 : 11 + 3 * m_Slow.Value();
    drive.shake = {0.28 * stroke * SinDegrees(m_Beat + 75), 0.04 * m_Fast.Value(),
                   -stroke * (SinDegrees(m_Beat) + 0.3 * SinDegrees(2 * m_Beat + 40))};
    return drive;
}

void Bird::updateFlapping()
{
    m_NextChange -= m_Step;
    if (m_NextChange < 0) {
        m_Gliding = !m_Gliding;
        m_NextChange = m_Gliding ? m_Random.Uniform(0.8, 2) : m_Random.Uniform(6, 14);
    }
    m_Flapping += ((m_Gliding ? 0.03 : 1) - m_Flapping) * m_Step / 0.15;
}

// The feet have less to do against buoyancy the deeper the bird is.
Bird::Drive Bird::descend() const
{
    const double stroke = m_Vigour * (0.45 - 0.25 * m_Now.depth / m_Phase.depth);
    const double thrust = SinDegrees(m_Beat);
    Drive drive;
    drive.pitch = -72 + 3 * m_Slow.Value() + 4 * thrust;
    drive.roll = 8 * m_Slow.Value();
    drive.turn = 6 * m_Slow.Value();
    drive.speed = 1.5 + 0.15 * thrust;
    drive.shake = {stroke * thrust, 0.05 * m_Fast.Value(), 0.3 * stroke * SinDegrees(m_Beat + 120)};
    return drive;
}

Bird::Drive Bird::forage()
{
    const double stroke = 0.12 * m_Vigour * SinDegrees(m_Beat);
    Drive drive;
    drive.pitch = -34 + 12 * m_Slow.Value();
    drive.roll = 12 * m_Fast.Value();
    drive.turn = 18 * m_Slow.Value();
    drive.speed = 0.45;
    drive.shake = {stroke, 0.04 * m_Fast.Value(), 0.4 * stroke};
    updateStrike();
    if (m_StrikeLength > 0) {
        const double share = m_StrikeTime / m_StrikeLength;
        const double force = 1.6 * m_Vigour * SinDegrees(180 * share);
        m_Now.strike = true;
        drive.turn += 70 * m_StrikeSide * SinDegrees(180 * share);
        drive.speed = 1.1;
        drive.shake.x += force * SinDegrees(900 * share + 30);
        drive.shake.y += 0.7 * force * m_StrikeSide * SinDegrees(720 * share);
        drive.shake.z -= 0.4 * force * SinDegrees(1080 * share);
    }
    return drive;
}

void Bird::updateStrike()
{
    if (m_StrikeLength > 0) {
        m_StrikeTime += m_Step;
        if (m_StrikeTime >= m_StrikeLength) {
            m_StrikeLength = 0;
            m_NextStrike = m_Random.Uniform(3, 11);
        }
        return;
    }
    m_NextStrike -= m_Step;
    // No strike begins that the end of the stay would cut off.
    if (m_NextStrike <= 0 && m_PhaseTime + 1 < m_Phase.seconds) {
        m_StrikeTime = 0;
        m_StrikeLength = m_Random.Uniform(0.6, 0.9);
        m_StrikeSide = m_Random.Uniform(-1, 1) < 0 ? -1 : 1;
    }
}

// A few strokes, then buoyancy does the rest.
Bird::Drive Bird::ascend() const
{
    const double stroke = m_Now.depth > 0.6 * m_Phase.depth ? 0.25 * m_Vigour : 0.03;
    Drive drive;
    drive.pitch = 74 + 4 * m_Slow.Value();
    drive.roll = 10 * m_Slow.Value();
    drive.turn = 8 * m_Slow.Value();
    drive.speed = 1.3 + 0.4 * (1 - m_Now.depth / m_Phase.depth);
    drive.shake = {stroke * SinDegrees(m_Beat), 0.03 * m_Fast.Value(),
                   0.3 * stroke * SinDegrees(m_Beat + 120)};
    return drive;
}

void Bird::follow(const Drive& drive)
{
    const double share = m_Step / std::max(drive.delay, m_Step);
    m_Now.pitch += (drive.pitch - m_Now.pitch) * share;
    m_Now.roll += (drive.roll - m_Now.roll) * share;
    m_Now.heading = WrapDegrees(m_Now.heading + drive.turn * m_Step, 0);
    m_Now.speed += (drive.speed - m_Now.speed) * m_Step / 0.8;
    m_Now.altitude += (drive.altitude - m_Now.altitude) * m_Step / 2.5;
    m_Now.shake = drive.shake;
}

void Bird::move()
{
    const bool flying = m_Phase.behaviour == Behaviour::Fly;
    const double forward = m_Now.speed * (flying ? 1 : CosDegrees(m_Now.pitch));
    const double* carried = flying ? WIND : CURRENT;
    m_Now.north += (forward * CosDegrees(m_Now.heading) + carried[0]) * m_Step;
    m_Now.east += (forward * SinDegrees(m_Now.heading) + carried[1]) * m_Step;

    if (m_Phase.behaviour == Behaviour::Forage)
        m_Now.depth += (0.4 * (m_Phase.depth - m_Now.depth) + 0.15 * m_Slow.Value()) * m_Step;
    else if (m_Phase.behaviour == Behaviour::Descend || m_Phase.behaviour == Behaviour::Ascend)
        m_Now.depth = std::max(m_Now.depth - m_Now.speed * SinDegrees(m_Now.pitch) * m_Step, 0.0);
}
