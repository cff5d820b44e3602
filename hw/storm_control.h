// Storm control of an AC and of a bridge: how it is configured, and what an NP has made of it.
#pragma once

#include "common/output.h"
#include "rp/feature_flags.h"
#include "rp/storm_control_state.h"

#include <algorithm>
#include <iterator>

namespace l2fib
{

/// The limits of one NP.
struct StormControlProfile {
    S32 rate[storm_traffic_types];
    U16 profile_id[storm_traffic_types]; // 12
    Bytes<2> unread_18;

    using R = StormControlProfile;
    using Fields = l2fib::Fields<&R::rate, &R::profile_id, &R::unread_18>;
};
static_assert(sizeof(StormControlProfile) == 20);

/// What is configured, by traffic type: broadcast, multicast, unknown unicast.
struct StormControlConfig {
    struct Limit {
        bool enabled;
        std::int32_t rate;
    };
    Limit limits[storm_traffic_types];
    bool kbps; // the unit of the rates; packets per second otherwise

    [[nodiscard]] bool any_enabled() const
    {
        return std::any_of(std::begin(limits), std::end(limits), [](const Limit &limit) { return limit.enabled; });
    }
};

/// The configuration by the enabled features, with the rates in the order of the traffic types.
StormControlConfig storm_control_config(const FeatureFlags &features, const std::int32_t (&rates)[storm_traffic_types],
                                        bool kbps);

/// Whether an NP has applied storm control. The state for broadcast decides.
bool has_storm_control(const StormControlState &state);

/// Prints the configuration and the table of what an NP made of it.
void print_storm_control(Output &out, std::uint32_t level, const StormControlConfig &config,
                         const StormControlState &state, const StormControlProfile &profile, std::uint32_t np);

} // namespace l2fib
