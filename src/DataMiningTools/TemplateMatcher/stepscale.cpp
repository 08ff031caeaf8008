#include "stepscale.h"

#include "plotmargin.h"
#include <algorithm>

namespace
{
constexpr int rightMargin = 49;
} // namespace

StepScale StepScale::OverAll(int steps, int width)
{
    StepScale scale;
    scale.m_To = std::max(steps, 0);
    scale.m_Start = PlotLeftMargin;
    const int count = std::max(steps, 1);
    scale.m_PixelsPerStep = float(std::max(width - PlotLeftMargin, 0)) / float(count);
    // The way back takes one pixel more than the way there: a band does not reach the steps of the
    // last pixel.
    scale.m_PixelsBack = double(std::max(width - PlotLeftMargin + 1, 1)) / count;
    return scale;
}

StepScale StepScale::OverRange(int from, int to, int width)
{
    StepScale scale;
    scale.m_From = from;
    scale.m_To = std::max(from, to);
    const int count = std::max(to - from, 1);
    scale.m_PixelsPerStep = float(std::max(width - rightMargin, 0)) / float(count);
    scale.m_PixelsBack = double(std::max(width - rightMargin, 1)) / count;
    return scale;
}

double StepScale::ToStep(double pixel) const
{
    return m_From + (pixel - double(m_Start)) / m_PixelsBack;
}

int StepScale::FindStep(float pixel) const
{
    int from = m_From;
    int to = m_To;
    while (from < to) {
        const int middle = from + (to - from) / 2;
        if (ToPixel(middle) < pixel)
            from = middle + 1;
        else
            to = middle;
    }
    return from;
}
