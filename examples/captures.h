// The sample captures of this directory.
#pragma once

#include "zel_l2fib/show.h"

#include <cstdint>
#include <vector>

namespace l2fib
{

std::vector<std::uint8_t> make_vpls_ac_ingress();
std::vector<std::uint8_t> make_vpls_ac_egress();
std::vector<std::uint8_t> make_local_switch_ac();
std::vector<std::uint8_t> make_point_to_point_pw();
std::vector<std::uint8_t> make_vpls_pw_ingress();
std::vector<std::uint8_t> make_bridge_ingress();
std::vector<std::uint8_t> make_bridge_egress();
std::vector<std::uint8_t> make_bridge_port();
std::vector<std::uint8_t> make_evpn_mac();
std::vector<std::uint8_t> make_local_mac();

struct SampleCapture {
    const char *name; ///< the file is NAME.bin
    std::uint32_t objtype;
    std::uint32_t direction;
    std::vector<std::uint8_t> (*make)();
};

inline constexpr SampleCapture sample_captures[] = {
    {"vpls-ac-ingress", L2FIB_OBJTYPE_AC, L2FIB_INGRESS, make_vpls_ac_ingress},
    {"vpls-ac-egress", L2FIB_OBJTYPE_AC, L2FIB_EGRESS, make_vpls_ac_egress},
    {"local-switch-ac", L2FIB_OBJTYPE_AC, L2FIB_INGRESS, make_local_switch_ac},
    {"point-to-point-pw", L2FIB_OBJTYPE_MPLS, L2FIB_INGRESS, make_point_to_point_pw},
    {"vpls-pw-ingress", L2FIB_OBJTYPE_MPLS, L2FIB_INGRESS, make_vpls_pw_ingress},
    {"bridge-ingress", L2FIB_OBJTYPE_BRIDGE, L2FIB_INGRESS, make_bridge_ingress},
    {"bridge-egress", L2FIB_OBJTYPE_BRIDGE, L2FIB_EGRESS, make_bridge_egress},
    {"bridge-port", L2FIB_OBJTYPE_BRIDGE_PORT, L2FIB_INGRESS, make_bridge_port},
    {"evpn-mac", L2FIB_OBJTYPE_BRIDGE_MAC, L2FIB_INGRESS, make_evpn_mac},
    {"local-mac", L2FIB_OBJTYPE_BRIDGE_MAC, L2FIB_INGRESS, make_local_mac},
};

} // namespace l2fib
