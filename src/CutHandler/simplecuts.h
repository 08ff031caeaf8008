#pragma once

#include "cutparameters.h"
#include "progress.h"
#include <vector>

class DataSet;

/// The rows to cut at every so many rows; none for a cut size below 1.
std::vector<int> PeriodicCuts(const DataSet& dataSet, const PeriodicCutParameters& parameters);

/// The rows of all persistent extrema, for each pair the maximum and then the minimum, the least
/// persistent pair first. None without such an attribute, or when the progress asked to stop.
std::vector<int> MinimaMaximaCuts(const DataSet& dataSet, const MinimaMaximaParameters& parameters,
                                  Progress& progress = NoProgress::Shared());
