#pragma once

#include "numbers.h"
#include <deque>

enum class Behaviour { Handling, Rest, Preen, Fly, Descend, Forage, Ascend };

/// The name under which a behaviour is labelled.
const char* BehaviourName(Behaviour behaviour);

/// One stretch of one behaviour. A descent ends at its depth and an ascent at the surface, all
/// others after their time.
struct Phase {
    Behaviour behaviour = Behaviour::Rest;
    double seconds = 0;
    /// Metres, of a dive.
    double depth = 0;
    /// Degrees from north, of a flight.
    double heading = 0;
};

/// What the bird does one after the other, without end: after the tag has been turned about by
/// hand, rounds of rest, preening, a flight to the next place, and a bout of dives there.
class Schedule
{
public:
    explicit Schedule(Random& random);
    Phase Next();

private:
    void planRound();
    void planDive(double bottom);
    void plan(Behaviour behaviour, double shortest, double longest);

    Random& m_Random;
    std::deque<Phase> m_Phases;
    double m_Heading = 205;
};
