#pragma once

/// Where the time steps of a search stand on a map, and which steps a pixel stands for.
class StepScale
{
public:
    /// All steps, right of a gutter as wide as the value axis of a plot.
    static StepScale OverAll(int steps, int width);
    /// The steps from up to, but without, to, left of a margin.
    static StepScale OverRange(int from, int to, int width);

    int GetFrom() const { return m_From; }
    int GetTo() const { return m_To; }
    /// The pixel of the first step.
    float GetStart() const { return m_Start; }

    float ToPixel(int step) const { return m_Start + float(step - m_From) * m_PixelsPerStep; }
    /// The place between the steps that belongs to a pixel, not cut to the steps there are.
    double ToStep(double pixel) const;
    /// The first step that stands at the pixel or right of it; GetTo() when there is none.
    int FindStep(float pixel) const;

private:
    StepScale() = default;

    int m_From = 0;
    int m_To = 0;
    float m_Start = 0;
    float m_PixelsPerStep = 0;
    /// Pixels per step on the way back.
    double m_PixelsBack = 1;
};
