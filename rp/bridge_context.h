// The RP's context of a bridge, and the HAL's context at its end.
#pragma once

#include "common/record.h"
#include "rp/feature_flags.h"
#include "rp/np_count.h"

#include <cstddef>

namespace l2fib
{

/// What the hardware abstraction layer (HAL) keeps of a bridge.
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
    StoredU32 vni_id; // 12

    using R = BridgeHalContext;
    using Fields = l2fib::Fields<&R::unread_0, &R::flags, &R::learn_key, &R::unread_6, &R::vni_id>;
};
static_assert(sizeof(BridgeHalContext) == 16);

/// What the HAL keeps of a bridge for one NP.
struct BridgeHalNpEntry {
    StoredU32 mac_limit_counter_index;
    StoredU16 shg_members[3];         //  4  members of split-horizon groups 0, 1 and 2
    StoredU16 irl_shg0_bound_members; // 10
    Bytes<8> unread_12;

    using R = BridgeHalNpEntry;
    using Fields =
        l2fib::Fields<&R::mac_limit_counter_index, &R::shg_members, &R::irl_shg0_bound_members, &R::unread_12>;

    /// The sum has 16 bits, as in the HAL.
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

    using R = BridgeContext;
    using Fields = l2fib::Fields<
        &R::unread_0, &R::state, &R::bridge_id, &R::unread_12, &R::unread_20, &R::unread_60, &R::unread_62,
        &R::unread_64, &R::mac_limit, &R::current_mac_limit, &R::static_macs, &R::port_level_static_macs, &R::mtu,
        &R::mac_limit_action, &R::unread_92, &R::unread_96, &R::unread_98, &R::unread_100, &R::features, &R::unread_124,
        &R::unread_128, &R::flags, &R::unread_156, &R::num_pw_members, &R::unread_422, &R::bvi_ifhandle, &R::unread_428,
        &R::unread_432, &R::unread_500, &R::bvi_xid, &R::last_notification, &R::unread_520, &R::unread_536,
        &R::unread_544, &R::unread_808, &R::unread_812, &R::unread_824, &R::unread_826, &R::unread_828, &R::unread_848>;

    [[nodiscard]] bool bvi_present() const { return features.more.test(FeatureFlags::bvi_present); }

    /// Whether the hardware's part carries the statistics pointers, and the indices and counts of BVIs. Three of
    /// these flags have no other known meaning.
    [[nodiscard]] bool has_feature_block_1() const
    {
        return bvi_present() || flags.test(8) || flags.test(pbb_statistics_pointer) || flags.test(12) ||
               flags.test(evpn_statistics_pointer) || flags.test(25) || flags.test(next_hop_has_bvi);
    }

    /// Whether it carries the state of storm control.
    [[nodiscard]] bool has_feature_block_2() const
    {
        return features.features.test(FeatureFlags::storm_control_unknown_unicast) ||
               features.features.test(FeatureFlags::storm_control_broadcast) ||
               features.features.test(FeatureFlags::storm_control_multicast);
    }
};
static_assert(sizeof(BridgeContext) == 912 && offsetof(BridgeContext, flags) == 152 &&
              offsetof(BridgeContext, last_notification) == 512);

/// A bridge's show data as far as its size is fixed; np_count entries of BridgeHalNpEntry follow.
struct BridgeShowData {
    NpCount np_count;
    Received<BridgeContext> context; //   2
    BridgeHalContext hal;            // 914

    using R = BridgeShowData;
    using Fields = l2fib::Fields<&R::np_count, &R::context, &R::hal>;
};
static_assert(sizeof(BridgeShowData) == 930);

} // namespace l2fib
