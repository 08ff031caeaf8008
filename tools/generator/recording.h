#pragma once

#include <cstdint>
#include <string>

struct RecordingOptions {
    std::int64_t rows = 45000;
    /// Whole rows per second.
    int rate = 25;
    std::uint64_t seed = 12;
    std::string folder = ".";
};

/// Writes recording.csv, labels.txt, strikes.txt, gps.csv, gps_clock.csv and path.csv, all of the
/// same bird. False when a file could not be written.
bool WriteExample(const RecordingOptions& options);

/// Writes recording.csv alone, with exactly nine columns and without the clock.
bool WritePlain(const RecordingOptions& options);
