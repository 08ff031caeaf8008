#pragma once

/// In front of a function with a loop over many values: where the compiler can, it is also compiled
/// for wider vector registers, and the processor takes what it has. The numbers are the same: no
/// operation is left out, reordered or fused.
#if defined(__GNUC__) && defined(__x86_64__) && defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
#define SKERRYMOOR_VECTOR_CLONES __attribute__((target_clones("avx2", "default")))
#else
#define SKERRYMOOR_VECTOR_CLONES
#endif
