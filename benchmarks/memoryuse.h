#pragma once

/// Memory of this process, in bytes, from the kernel's own account.
struct Memory {
    double resident = 0.0;
    double peak = 0.0;
};

Memory MemoryInUse();
/// Gives freed memory back, so that the peak from here on is that of the next step alone.
void RestartPeak();
