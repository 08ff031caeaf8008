#pragma once

#include <cmath>
#include <limits>

/// The line between the ends of a segment. Its values are the recorded ones without their fraction,
/// so in a signal that stays below 1 every line lies at 0.
struct PIPChord {
    int m_Start;
    int m_End;
    double m_StartValue;
    double m_EndValue;
};

/// Each distance below is a function of row and value that has its maximum over a rectangle of
/// rows and values at one of the four corners. Slack is what rounding may add to that inside
/// the rectangle, for values from low to high.

/// The sum of the distances to both ends; rows and values are mixed without scaling.
class EuclideanDistance
{
public:
    explicit EuclideanDistance(const PIPChord& chord) : m_Chord(chord) {}

    double operator()(int row, double value) const
    {
        const double toEnd = m_Chord.m_End - row;
        const double toStart = row - m_Chord.m_Start;
        const double belowEnd = m_Chord.m_EndValue - value;
        const double belowStart = m_Chord.m_StartValue - value;
        return std::sqrt(toEnd * toEnd + belowEnd * belowEnd) +
               std::sqrt(belowStart * belowStart + toStart * toStart);
    }

    double Slack(double low, double high) const
    {
        const bool isOnLine = low == high && low == m_Chord.m_EndValue;
        if (isOnLine && low == m_Chord.m_StartValue)
            return 0.0; // whole numbers all along
        const double largest = std::abs(low) + std::abs(high) + std::abs(m_Chord.m_StartValue) +
                               std::abs(m_Chord.m_EndValue) + m_Chord.m_End - m_Chord.m_Start;
        return 32.0 * std::numeric_limits<double>::epsilon() * largest;
    }

private:
    PIPChord m_Chord;
};

/// The distance from the line along its normal.
class VerticalDistance
{
public:
    explicit VerticalDistance(const PIPChord& chord)
        : m_Start(chord.m_Start), m_StartValue(chord.m_StartValue),
          m_Length(chord.m_End - chord.m_Start), m_Rise(chord.m_EndValue - chord.m_StartValue),
          m_Norm(std::sqrt(m_Rise * m_Rise + m_Length * m_Length))
    {
    }

    double operator()(int row, double value) const
    {
        const double toStart = row - m_Start;
        return std::abs((m_StartValue - value) * m_Length + toStart * m_Rise) / m_Norm;
    }

    /// None: every rounded step rises or falls all along with row and with value.
    double Slack(double, double) const { return 0.0; }

private:
    int m_Start;
    double m_StartValue;
    double m_Length;
    double m_Rise;
    double m_Norm;
};

/// The distance from a point on the line's level, with the signs of the end's terms the other
/// way round than in a projection: on a slope, points on the line have a distance too.
class PerpendicularDistance
{
public:
    explicit PerpendicularDistance(const PIPChord& chord)
        : m_End(chord.m_End), m_EndValue(chord.m_EndValue),
          m_Slope((chord.m_EndValue - chord.m_StartValue) / (chord.m_End - chord.m_Start)),
          m_SquaredSlope(m_Slope * m_Slope)
    {
    }

    double operator()(int row, double value) const
    {
        const double foot =
            (m_Slope * value + row + m_EndValue * m_Slope - m_End * m_SquaredSlope) /
            (m_SquaredSlope + 1.0);
        const double up = foot * m_Slope - m_End * m_Slope + m_EndValue - value;
        const double along = foot - row;
        return std::sqrt(up * up + along * along);
    }

    double Slack(double low, double high) const
    {
        if (m_Slope == 0.0)
            return 0.0; // |m_EndValue - value|, of which every rounded step is monotonic
        const double largest = std::abs(low) + std::abs(high) + std::abs(m_EndValue) + 2.0 * m_End;
        return 64.0 * std::numeric_limits<double>::epsilon() * largest * (1.0 + std::abs(m_Slope));
    }

private:
    double m_End;
    double m_EndValue;
    double m_Slope;
    double m_SquaredSlope;
};

/// What an unknown measure gives.
class UnknownDistance
{
public:
    explicit UnknownDistance(const PIPChord&) {}
    double operator()(int, double) const { return 0.0; }
    double Slack(double, double) const { return 0.0; }
};
