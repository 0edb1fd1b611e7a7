#pragma once
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

// What libFuzzer calls, and the replay of the corpus.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

// Stays in optimised builds, unlike an assertion.
#define FUZZ_CHECK(condition)                                                                  \
    do {                                                                                       \
        if (!(condition)) {                                                                    \
            std::fprintf(stderr, "%s:%d: %s does not hold\n", __FILE__, __LINE__, #condition); \
            std::abort();                                                                      \
        }                                                                                      \
    } while (false)
