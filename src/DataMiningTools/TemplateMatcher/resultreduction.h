#pragma once

#include "matchextraction.h"
#include <vector>

class StepScale;

/// A confidence and where it stands on a map.
struct PositionValue {
    float m_X;
    float m_Value;
};

/// The highest confidence of all frequency factors by position, from left to right. Of the steps
/// that share a pixel only the best one is kept, so that millions of steps cost no more than the
/// width of a map.
std::vector<PositionValue> computePositionValueList(const SearchResults& results,
                                                    const StepScale& scale);

/// The same for one frequency factor alone.
std::vector<PositionValue> computePositionValueList(const SearchResults& results, int factor,
                                                    const StepScale& scale);

/// The pixels, ascending and each once, on which the matches stand; those outside the scale are
/// left out.
std::vector<int> computeMatchPixels(const std::vector<int>& centers, const StepScale& scale);

/// The pixels of all frequency factors, one factor after the other.
std::vector<int> computeMatchPixels(const CenterPoints& matches, const StepScale& scale);

/// How many of all matches stand in each bin of that many pixels, counted from the first step's
/// pixel.
std::vector<int> computeMatchDistribution(const CenterPoints& matches, const StepScale& scale,
                                          int binWidth);
