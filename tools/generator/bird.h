#pragma once

#include "schedule.h"

/// Where the bird is and how it moves at one time.
struct Moment {
    Behaviour behaviour = Behaviour::Handling;
    /// The bird snaps at prey.
    bool strike = false;
    /// Metres from the start, below and above the surface.
    double north = 0;
    double east = 0;
    double depth = 0;
    double altitude = 0;
    /// Metres per second along the heading, through air or water.
    double speed = 0;
    /// Degrees: from true north, nose up, right side down.
    double heading = 120;
    double pitch = 0;
    double roll = 0;
    /// The body's own acceleration in g: forward, right, down.
    Vector3 shake;
};

/// A diving seabird, moved on by one step of 1 / rate seconds at a time.
class Bird
{
public:
    Bird(Random& random, double rate);
    Bird(const Bird&) = delete;
    Bird& operator=(const Bird&) = delete;

    const Moment& Step();

private:
    /// What a behaviour strives for; the body follows with some delay.
    struct Drive {
        double pitch = 0;
        double roll = 0;
        /// Degrees per second.
        double turn = 0;
        double speed = 0;
        double altitude = 0;
        /// Seconds within which the body follows.
        double delay = 0.7;
        Vector3 shake;
    };

    void startPhase();
    bool phaseIsOver() const;
    Drive drive();
    Drive handle() const;
    Drive rest() const;
    Drive preen() const;
    Drive fly();
    Drive descend() const;
    Drive forage();
    Drive ascend() const;
    void updateFlapping();
    void updateStrike();
    void follow(const Drive& drive);
    void move();

    Random& m_Random;
    double m_Step;
    Schedule m_Schedule;
    Phase m_Phase;
    Moment m_Now;
    Wander m_Fast;
    Wander m_Slow;
    /// Seconds since the start, and since the phase began.
    double m_Time = 0;
    double m_PhaseTime = 0;
    /// Degrees within the present wing beat or foot stroke, and how they vary by phase.
    double m_Beat = 0;
    double m_Tempo = 1;
    double m_Vigour = 1;
    /// Share of full flapping, 0 in a glide; and when that changes next.
    double m_Flapping = 1;
    bool m_Gliding = false;
    double m_NextChange = 0;
    /// Seconds to the next strike, or since the present one began and how long it lasts.
    double m_NextStrike = 0;
    double m_StrikeTime = 0;
    double m_StrikeLength = 0;
    double m_StrikeSide = 1;
};
