// The sample captures of this directory.
#pragma once

#include <cstdint>
#include <vector>

namespace l2fib
{

std::vector<std::uint8_t> make_vpls_ac_ingress();
std::vector<std::uint8_t> make_vpls_ac_egress();
std::vector<std::uint8_t> make_vpls_ac_private();
std::vector<std::uint8_t> make_local_switch_ac();
std::vector<std::uint8_t> make_ac_inconsistency();
std::vector<std::uint8_t> make_point_to_point_pw();
std::vector<std::uint8_t> make_vpls_pw_ingress();
std::vector<std::uint8_t> make_bridge_ingress();
std::vector<std::uint8_t> make_bridge_egress();
std::vector<std::uint8_t> make_bridge_port();
std::vector<std::uint8_t> make_evpn_mac();
std::vector<std::uint8_t> make_local_mac();
std::vector<std::uint8_t> make_next_hop();
std::vector<std::uint8_t> make_resources();
std::vector<std::uint8_t> make_state_summary();
std::vector<std::uint8_t> make_event_statistics();
std::vector<std::uint8_t> make_hal_summary();

struct SampleCapture {
    const char *name; ///< the file is NAME.jsonl
    const char *object;
    const char *direction;
    const char *view;
    std::vector<std::uint8_t> (*make)();
};

inline constexpr SampleCapture sample_captures[] = {
    {"vpls-ac-ingress", "ac", "ingress", "detail", make_vpls_ac_ingress},
    {"vpls-ac-egress", "ac", "egress", "detail", make_vpls_ac_egress},
    {"vpls-ac-private", "ac", "ingress", "private", make_vpls_ac_private},
    {"local-switch-ac", "ac", "ingress", "detail", make_local_switch_ac},
    {"inconsistent-ac", "ac", "ingress", "inconsistent", make_ac_inconsistency},
    {"point-to-point-pw", "pw", "ingress", "detail", make_point_to_point_pw},
    {"vpls-pw-ingress", "pw", "ingress", "detail", make_vpls_pw_ingress},
    {"vpls-pw-private", "pw", "ingress", "private", make_vpls_pw_ingress},
    {"bridge-ingress", "bridge", "ingress", "detail", make_bridge_ingress},
    {"bridge-egress", "bridge", "egress", "detail", make_bridge_egress},
    {"bridge-private", "bridge", "ingress", "private", make_bridge_ingress},
    {"bridge-port", "bridge-port", "ingress", "detail", make_bridge_port},
    {"evpn-mac", "mac", "ingress", "detail", make_evpn_mac},
    {"local-mac", "mac", "ingress", "detail", make_local_mac},
    {"next-hop", "nhop", "ingress", "private", make_next_hop},
    {"resources", "resources", "ingress", "private", make_resources},
    {"state-summary", "summary", "ingress", "detail", make_state_summary},
    {"event-statistics", "counters", "ingress", "detail", make_event_statistics},
    {"hal-summary", "hal-summary", "ingress", "detail", make_hal_summary},
};

} // namespace l2fib
