// Network processors (NPs): how many there are, and which of them are shown.
#pragma once

#include "common/output.h"

namespace l2fib
{

constexpr std::uint32_t max_nps = 8;

/// Whether a line card can have so many NPs.
constexpr bool np_count_is_valid(std::uint32_t np_count)
{
    return np_count >= 1 && np_count <= max_nps;
}

/// Prints on the current line what is wrong with an NP count. The view then shows no NP, but does not fail.
void print_invalid_np_count(Output &out, std::uint32_t np_count);

/// The NPs that are shown: from first up to, not including, end.
struct NpRange {
    std::uint32_t first;
    std::uint32_t end;
};

/// The NP that an operator asked for, or all of them.
constexpr NpRange np_range(std::uint32_t requested_np, std::uint32_t np_count)
{
    constexpr std::uint32_t last_single_np = 9;
    return requested_np <= last_single_np ? NpRange{requested_np, requested_np + 1} : NpRange{0, np_count};
}

} // namespace l2fib
