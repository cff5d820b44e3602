// What a target consists of, and how it says that something is wrong.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" {
/// Runs one input. Returns 0.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size); // NOLINT(readability-identifier-naming)

/// Changes an input of `size` bytes in place, to one of up to `max_size` bytes. Returns how many. A target that has
/// none has its inputs changed without regard to what they are.
// NOLINTNEXTLINE(readability-identifier-naming)
std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed);
}

namespace l2fib
{

/// Ends the target, as the sanitizers do, when something does not hold.
inline void require(bool holds, const char *what)
{
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

} // namespace l2fib
