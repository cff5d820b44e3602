#include "hw/storm_control.h"

#include "common/names.h"

#include <iterator>

namespace l2fib
{

enum StormControlStatus : std::uint32_t { status_none = 0, status_config = 3 };

static Literal status_name(std::uint32_t status)
{
    static constexpr Literal names[] = {"None", "Disable", "Alloc", "Config", "Alloc Failed", "Config Failed"};
    return name_of(names, status, "Invalid");
}

static constexpr Literal traffic_names[] = {"Broadcast", "Multicast", "Unknown Unicast"};
static_assert(std::size(traffic_names) == storm_traffic_types);

static void print_configuration(Output &out, std::uint32_t level, const StormControlConfig &config)
{
    out.line(level, "Storm Control Configuration:");
    for (unsigned type = 0; type < storm_traffic_types; ++type) {
        const StormControlConfig::Limit &limit = config.limits[type];
        out.text(" %s: ", traffic_names[type]);
        if (limit.enabled) {
            out.text("%d %s", limit.rate, config.kbps ? "kbps," : "pps,");
        } else {
            // Only a rate is followed by a comma at the end of the line.
            out.text("%s", type + 1 < storm_traffic_types ? "Disabled," : "Disabled");
        }
    }
}

static void print_table_head(Output &out, std::uint32_t level, bool kbps)
{
    constexpr Literal rule = "--------------------------------------------------------------------------------";
    out.line(level, "%-15s|%-13s|%-8s|%-13s|%-15s|%-10s|%-2s", " Traffic Type", "   Status", kbps ? "kbps" : " pps",
             "Profile Index", "Token Bucket ID", "Profile ID", "NP");
    out.line(level, "%s", rule);
}

static void print_rows(Output &out, std::uint32_t level, const StormControlState &state,
                       const StormControlProfile &profile, std::uint8_t np)
{
    for (unsigned type = 0; type < storm_traffic_types; ++type) {
        const StormControlTraffic &traffic = state.traffic[type];
        if (traffic.status == status_config) {
            out.line(level, "%-15s|%-13s|%-8d|%-13d|0x%-13x|%-10d|%-2d", traffic_names[type],
                     status_name(traffic.status), profile.rate[type],
                     traffic.profile.get(StormControlTraffic::profile_index), traffic.token_bucket_id,
                     profile.profile_id[type], np);
        } else {
            out.line(level, "%-15s|%-13s|%8s|%13s|%15s|%10s|%-2d", traffic_names[type], status_name(traffic.status),
                     "------", "-------------", "---------------", "----------", np);
        }
    }
}

StormControlConfig storm_control_config(const FeatureFlags &features, const std::int32_t (&rates)[storm_traffic_types],
                                        bool kbps)
{
    return {.limits = {{features.features.test(FeatureFlags::storm_control_broadcast), rates[0]},
                       {features.features.test(FeatureFlags::storm_control_multicast), rates[1]},
                       {features.features.test(FeatureFlags::storm_control_unknown_unicast), rates[2]}},
            .kbps = kbps};
}

bool has_storm_control(const StormControlState &state)
{
    constexpr unsigned broadcast = 0;
    return state.traffic[broadcast].status != status_none;
}

void print_storm_control(Output &out, std::uint32_t level, const StormControlConfig &config,
                         const StormControlState &state, const StormControlProfile &profile, std::uint32_t np)
{
    print_configuration(out, level, config);
    print_table_head(out, level, config.kbps);
    print_rows(out, level, state, profile, static_cast<std::uint8_t>(np));
}

} // namespace l2fib
