// Values whose text is more than a number: times, addresses, groups.
#pragma once

#include "common/number.h"
#include "common/recording.h"
#include "common/text.h"

#include <cstdint>

namespace l2fib
{

// What a number, or the bytes of an address, look like.
Text timestamp_of(std::uint64_t stamp);
Text elapsed_of(std::uint64_t ns);
Text shg_of(std::uint32_t group);
Text mac_of(const Bytes<6> &mac);

// The same for a field.

/// The wall-clock time of a monotonic stamp in nanoseconds, "N/A" for a stamp of 0.
template <class Field>
auto timestamp_text(const Field &stamp)
{
    return made_from(stamp, timestamp_of);
}

/// An elapsed time in nanoseconds.
template <class Field>
auto elapsed_text(const Field &ns)
{
    return made_from(ns, elapsed_of);
}

/// A split-horizon group.
template <class Field>
auto shg_text(const Field &group)
{
    return made_from(group, shg_of);
}

/// A MAC address in wire order: 0011.2233.4455.
inline auto mac_text(const Bytes<6> &mac)
{
    return made_from(mac, mac_of);
}

} // namespace l2fib
