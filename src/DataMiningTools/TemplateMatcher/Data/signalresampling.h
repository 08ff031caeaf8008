#pragma once

#include <QtGlobal>
#include <vector>

/// Factors that a user may resample by.
constexpr int MaxResamplingFactor = 1000;
/// The most values that a signal may have on its way, and all signals of a template together. Up
/// to here a single precision quotient counts them rightly.
constexpr qint64 MaxSignalLength = 1 << 24;

/// How many values a signal of that length has after up-sampling alone.
qint64 UpsampledLength(qint64 length, int up, int down);
/// How many ResampledSignal gives.
qint64 ResampledLength(qint64 length, int up, int down);

/// A signal up-sampled by straight lines between its values, then every down-th value of that,
/// from the first on. A factor below 2 does nothing, and neither do equal ones. Empty when more
/// than MaxSignalLength values would be needed.
std::vector<double> ResampledSignal(const std::vector<double>& signal, int up, int down);
