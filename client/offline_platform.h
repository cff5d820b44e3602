// The router that show data came from, as far as showing it asks for it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace l2fib
{

/// What a router's two clocks showed at one time.
struct Clocks {
    std::uint64_t monotonic_seconds;
    std::uint64_t wall_seconds; ///< since 1970-01-01 00:00 UTC
};

struct Router {
    std::uint32_t card_type = 0x1e1000;
    std::optional<Clocks> clocks;         ///< when the show data was taken; without them, those of this machine
    std::optional<std::string> time_zone; ///< as POSIX has it in TZ; without it, that of this machine
    std::vector<std::uint32_t> virtual_interfaces;
};

/// Has the platform operations answer for this router, which must outlive its being shown.
void answer_for(const Router &router);

/// Whether a text is a time zone that POSIX describes, rather than the name of a file.
bool is_time_zone(const std::string &text);

/// The clocks and the time zone of this machine.
Clocks clocks_now();
std::string local_time_zone();

} // namespace l2fib
