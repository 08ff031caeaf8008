#pragma once

/// Compiles a function several times, for processors old and new; the one that fits is chosen when
/// the program starts. All give the same results, as each step stays a step of its own.
#if defined(__x86_64__) && defined(__gnu_linux__)
#define SKERRYMOOR_PROCESSOR_CLONES                                                                \
    __attribute__((flatten, target_clones("avx512f", "avx2", "default")))
#else
#define SKERRYMOOR_PROCESSOR_CLONES
#endif
