// The number of network processors (NPs) for which the producer has appended data.
#pragma once

#include "common/record.h"

namespace l2fib
{

/// The beginning of the show data of ACs and bridges. It stays big-endian.
struct NpCount {
    BigU16 count;

    using R = NpCount;
    using Fields = l2fib::Fields<&R::count>;

    /// The part of the count by which sizes are calculated.
    [[nodiscard]] std::uint8_t low_byte() const { return static_cast<std::uint8_t>(count); }
};

/// Bytes that the platform keeps for each NP after the context of an AC or a bridge.
constexpr std::uint64_t np_entry_size = 20;

} // namespace l2fib
