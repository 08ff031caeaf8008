#pragma once

/// Memory of this process, in bytes: resident and at its peak from the kernel's own account, and
/// what has been asked for and not given back from the allocator's.
struct Memory {
    double resident = 0.0;
    double peak = 0.0;
    double allocated = 0.0;
};

Memory MemoryInUse();
/// Gives freed memory back, so that the peak from here on is that of the next step alone.
void RestartPeak();
