#include "schedule.h"

const char* BehaviourName(Behaviour behaviour)
{
    switch (behaviour) {
    case Behaviour::Handling:
        return "handling";
    case Behaviour::Rest:
        return "rest";
    case Behaviour::Preen:
        return "preen";
    case Behaviour::Fly:
        return "fly";
    case Behaviour::Descend:
        return "descend";
    case Behaviour::Forage:
        return "forage";
    case Behaviour::Ascend:
        return "ascend";
    }
    return "";
}

Schedule::Schedule(Random& random) : m_Random(random)
{
    plan(Behaviour::Handling, 45, 45);
}

Phase Schedule::Next()
{
    if (m_Phases.empty())
        planRound();
    const Phase phase = m_Phases.front();
    m_Phases.pop_front();
    return phase;
}

void Schedule::plan(Behaviour behaviour, double shortest, double longest)
{
    Phase phase;
    phase.behaviour = behaviour;
    phase.seconds = m_Random.Uniform(shortest, longest);
    phase.heading = m_Heading;
    m_Phases.push_back(phase);
}

void Schedule::planDive(double bottom)
{
    const double depth = bottom + m_Random.Gauss();
    for (const Behaviour behaviour : {Behaviour::Descend, Behaviour::Forage, Behaviour::Ascend}) {
        plan(behaviour, 22, 42);
        m_Phases.back().depth = depth;
    }
}

void Schedule::planRound()
{
    plan(Behaviour::Rest, 30, 60);
    plan(Behaviour::Preen, 14, 30);
    plan(Behaviour::Rest, 8, 15);
    m_Heading = WrapDegrees(m_Heading + m_Random.Uniform(95, 135), 0);
    plan(Behaviour::Fly, 60, 95);
    plan(Behaviour::Rest, 15, 25);
    const double bottom = m_Random.Uniform(14, 32);
    const int dives = int(m_Random.Uniform(3, 6));
    for (int i = 0; i < dives; ++i) {
        planDive(bottom);
        plan(Behaviour::Rest, 18, 38);
    }
}
