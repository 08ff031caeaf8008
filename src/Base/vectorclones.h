#pragma once

/// In front of a function with a loop over many values: where the compiler can, it and all that it
/// calls is also compiled for wider vector registers, and the processor takes what it has when the
/// program starts. The numbers are the same: no operation is left out, reordered or fused.
///
/// Not under AddressSanitizer, which is not set up yet when the choice is made.
#if defined(__x86_64__) && defined(__gnu_linux__) && !defined(__SANITIZE_ADDRESS__)
#define SKERRYMOOR_VECTOR_CLONES                                                                   \
    __attribute__((flatten, target_clones("avx512f", "avx2", "default")))
#else
#define SKERRYMOOR_VECTOR_CLONES
#endif
