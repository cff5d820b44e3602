// Values whose text is more than a number: times, addresses, groups.
#pragma once

#include "common/number.h"
#include "common/text.h"

#include <cstdint>

namespace l2fib
{

/// The wall-clock time of a monotonic stamp in nanoseconds, "N/A" for a stamp of 0.
Text timestamp_text(std::uint64_t stamp);

/// An elapsed time in nanoseconds.
Text elapsed_text(std::uint64_t ns);

/// A split-horizon group.
Text shg_text(std::uint32_t group);

/// A MAC address in wire order: 0011.2233.4455.
Text mac_text(const Bytes<6> &mac);

} // namespace l2fib
