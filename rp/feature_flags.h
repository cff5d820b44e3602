// The layer-2 features that a bridge passes on to its ports: the same words in both records.
#pragma once

#include "common/record.h"

namespace l2fib
{

struct FeatureFlags {
    enum Feature : unsigned {
        admin_down = 1,
        flood_disable = 2,
        flood_unknown_unicast_disable = 3,
        mac_limit_reached = 7,
        mac_learn_disable = 8,
        mac_learn_disable_cfg = 9,
        mac_port_flush_disabled = 10,
        mac_sec_enable = 12,
        mac_sec_log = 13,
        mac_secure_action = 14, // 2 bits
        storm_control_unknown_unicast = 17,
        storm_control_broadcast = 18,
        storm_control_multicast = 19,
        dhcp_snoop_enable = 20,
        dhcp_trusted = 21,
        dai_enabled = 22,
        dai_ipv4 = 23,
        dai_src_mac = 24,
        dai_dst_mac = 25,
        dai_log = 26,
        ipsg_enabled = 27,
        ipsg_log = 28,
    };
    enum MoreFeature : unsigned { igmp_snoop_enable = 0, bvi_present = 13 };

    FlagWord<one_bit(5), wide(2), wide(2), one_bit(7), wide(2), one_bit(14)> features;
    FlagWord<one_bit(32)> more;
    FlagWord<one_bit(2), wide(6)> unread_8;

    using R = FeatureFlags;
    using Fields = l2fib::Fields<&R::features, &R::more, &R::unread_8>;
};
static_assert(sizeof(FeatureFlags) == 12);

} // namespace l2fib
