// The state of storm control on one NP.
#pragma once

#include "common/stored.h"

#include <cstddef>

namespace l2fib
{

/// The kinds of traffic that storm control limits, in the order of its records.
constexpr unsigned storm_traffic_types = 3;

struct StormControlState {
    struct Traffic {
        Bytes<20> unread_0;
        FlagWord<wide(8), wide(24)> profile; // 20  field 1 is the profile index
        Bytes<24> unread_24;
        U32 token_bucket_id; // 48
        Bytes<20> unread_52;
        U32 status; // 72
        Bytes<4> unread_76;
    };
    enum ProfileField : unsigned { profile_index = 1 };

    Bytes<56> unread_0;
    Traffic traffic[storm_traffic_types]; // 56  broadcast, multicast, unknown unicast

    void to_host();
};
static_assert(sizeof(StormControlState) == 296 && sizeof(StormControlState::Traffic) == 80);

} // namespace l2fib
