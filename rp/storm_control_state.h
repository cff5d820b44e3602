// The state of storm control on one NP.
#pragma once

#include "common/record.h"

#include <cstddef>

namespace l2fib
{

/// The kinds of traffic that storm control limits, in the order of its records.
constexpr unsigned storm_traffic_types = 3;

/// The state for one kind of traffic.
struct StormControlTraffic {
    enum ProfileField : unsigned { profile_index = 1 };

    Bytes<20> unread_0;
    FlagWord<wide(8), wide(24)> profile; // 20
    Bytes<24> unread_24;
    U32 token_bucket_id; // 48
    Bytes<20> unread_52;
    U32 status; // 72
    Bytes<4> unread_76;

    using R = StormControlTraffic;
    using Fields = l2fib::Fields<&R::unread_0, &R::profile, &R::unread_24, &R::token_bucket_id, &R::unread_52,
                                 &R::status, &R::unread_76>;
};
static_assert(sizeof(StormControlTraffic) == 80);

struct StormControlState {
    Bytes<56> unread_0;
    StormControlTraffic traffic[storm_traffic_types]; // 56  broadcast, multicast, unknown unicast

    using R = StormControlState;
    using Fields = l2fib::Fields<&R::unread_0, &R::traffic>;
};
static_assert(sizeof(StormControlState) == 296);

} // namespace l2fib
