// The RP's context of a bridge, and the HAL's context at its end.
#pragma once

#include "common/stored.h"
#include "rp/feature_flags.h"

#include <cstddef>

namespace l2fib
{

/// What the hardware abstraction layer (HAL) keeps of a bridge. In host order as stored.
struct BridgeHalContext {
    enum Flag : unsigned {
        mac_count_read_pending = 0,
        bvi_configured = 1,
        storm_control_failure = 2,
        storm_control_unit_kbps = 3,
    };

    Bytes<4> unread_0;
    U8 flags;     //  4
    U8 learn_key; //  5
    Bytes<6> unread_6;
    U32 vni_id; // 12
};
static_assert(sizeof(BridgeHalContext) == 16);

/// What the HAL keeps of a bridge for one NP. In host order as stored.
struct BridgeHalNpEntry {
    U32 mac_limit_counter_index;
    U16 shg_members[3];         //  4  members of split-horizon groups 0, 1 and 2
    U16 irl_shg0_bound_members; // 10
    Bytes<8> unread_12;

    /// Counted in 16 bits, as the HAL does.
    [[nodiscard]] std::uint16_t members() const
    {
        return static_cast<std::uint16_t>(shg_members[0] + shg_members[1] + shg_members[2]);
    }
};
static_assert(sizeof(BridgeHalNpEntry) == 20);

struct BridgeContext {
    enum Flag : unsigned {
        admin_down = 0,
        flood_disabled = 1,
        unknown_unicast = 2,
        mac_learn_disable = 3,
        mac_limit_exceeded = 7,
        pbb_statistics_pointer = 9,
        bvi_flood_change = 15,
        learn_limit_no_learn = 16,
        learn_limit_drop = 17,
        mac_limit_changed = 20,
        evpn_statistics_pointer = 23,
        next_hop_has_bvi = 28,
    };

    U32 unread_0;
    U32 state;     //   4
    U32 bridge_id; //   8
    U16 unread_12[4];
    U32 unread_20[10];
    U16 unread_60;
    Bytes<2> unread_62;
    U32 unread_64;
    U32 mac_limit;              //  68
    U32 current_mac_limit;      //  72
    U32 static_macs;            //  76
    U32 port_level_static_macs; //  80
    U32 mtu;                    //  84
    U32 mac_limit_action;       //  88
    Bytes<4> unread_92;
    U16 unread_96;
    Bytes<2> unread_98;
    U32 unread_100[3];
    FeatureFlags features; // 112
    Bytes<4> unread_124;
    U64 unread_128[3];
    FlagWord<one_bit(30), wide(2)> flags; // 152
    U16 unread_156[132];
    U16 num_pw_members; // 420
    Bytes<2> unread_422;
    U32 bvi_ifhandle; // 424
    U32 unread_428;
    Bytes<68> unread_432;
    U32 unread_500[2];
    U32 bvi_xid;           // 508
    U64 last_notification; // 512  monotonic nanoseconds
    U32 unread_520[4];
    U16 unread_536[4];
    U16 unread_544[132];
    Bytes<4> unread_808;
    U32 unread_812[3];
    Bytes<2> unread_824;
    U16 unread_826;
    U32 unread_828[5];
    Bytes<64> unread_848;
    BridgeHalContext hal; // 912

    [[nodiscard]] bool bvi_present() const { return features.more.test(FeatureFlags::bvi_present); }

    /// Whether the hardware's part carries the statistics pointers, and the indices and counts of BVIs.
    [[nodiscard]] bool has_feature_block_1() const;
    /// Whether it carries the state of storm control.
    [[nodiscard]] bool has_feature_block_2() const;

    void to_host();
};
static_assert(sizeof(BridgeContext) == 928 && offsetof(BridgeContext, flags) == 152 &&
              offsetof(BridgeContext, last_notification) == 512 && offsetof(BridgeContext, hal) == 912);

/// A bridge's show data as far as its size is fixed; np_count entries of BridgeHalNpEntry follow.
struct BridgeShowData {
    U16 np_count; // stays big-endian; only its low byte counts in sizes
    BridgeContext context;
};

} // namespace l2fib
