// Loops over bytes that the compiler makes vector code of.
//
// On x86 a function marked so exists twice, for every processor and for those with vectors of 32
// bytes; which of the two runs is settled when the program starts. The sanitizers are not up yet at
// that moment.
#pragma once

#if defined(__x86_64__) && defined(__linux__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__)
#define VELLMORAN_VECTOR_LOOP [[gnu::target_clones("avx2", "default")]]
#else
#define VELLMORAN_VECTOR_LOOP
#endif
