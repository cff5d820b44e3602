// How many network processors (NPs) the producer has appended something for.
#pragma once

#include "common/record.h"

namespace l2fib
{

/// Begins the show data of ACs and bridges, and stays big-endian.
struct NpCount {
    BigU16 count;

    using R = NpCount;
    using Fields = l2fib::Fields<&R::count>;

    /// What counts in sizes.
    [[nodiscard]] std::uint8_t low_byte() const { return static_cast<std::uint8_t>(count); }
};

/// Bytes that the platform keeps for each NP after the context of an AC or a bridge.
constexpr std::uint64_t np_entry_size = 20;

} // namespace l2fib
