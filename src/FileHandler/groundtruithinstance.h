#pragma once

/// One occurrence of a behaviour as a file tells it: two row indices, -1 for an end that is no
/// row of the data.
class GroundTruithInstance
{
public:
    GroundTruithInstance(int from, int to) : m_From(from), m_To(to) {}

    int GetFrom() const { return m_From; }
    int GetTo() const { return m_To; }

private:
    int m_From;
    int m_To;
};
