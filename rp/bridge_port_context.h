// The RP's context of a bridge port, which the hardware part of a VPLS AC or PW carries too.
#pragma once

#include "common/record.h"
#include "rp/feature_flags.h"
#include "rp/storm_control_state.h"

#include <cstddef>

namespace l2fib
{

struct BridgePortContext {
    enum Flag : unsigned {
        bundle_port = 2,
        lb_type_valid = 3,
        msti_learn_only = 13,
        msti_ingress_blocked = 14,
        msti_egress_blocked = 15,
        msti_enabled = 16,
        evpn_egress_mc_blocked = 17,
        p2mp_pw_enabled = 22,
    };
    static constexpr std::uint8_t storm_control_in_kbps = 0x40; // of storm_control_unit

    U32 unread_0;
    U32 state;     //   4
    U32 pi_xid;    //   8
    U32 bridge_id; //  12
    U8 shg_id;     //  16
    Bytes<3> unread_17;
    U32 unread_20;
    U32 mac_limit;                        //  24
    U32 num_static_macs;                  //  28
    FlagWord<one_bit(26), wide(6)> flags; //  32
    U32 unread_36;
    U32 slot_mask[2]; //  40  of racks 0 and 1
    U32 unread_48[3];
    U16 unread_60;
    Bytes<2> unread_62;
    U32 unread_64[3];
    FeatureFlags features;    //  76
    S32 unknown_unicast_rate; //  88  of storm control, as the two that follow
    S32 broadcast_rate;       //  92
    S32 multicast_rate;       //  96
    U16 np_flood_mask;        // 100
    U16 np_flood_mask_old;    // 102
    U16 unread_104;
    Bytes<2> unread_106;
    U32 lb_type;   // 108
    U32 p2mp_role; // 112
    Bytes<4> unread_116;
    U64 last_notification; // 120  monotonic nanoseconds
    U32 unread_128;
    Bytes<8> unread_132;
    U32 unread_140;
    Bytes<4> unread_144;
    U32 unread_148;

    // The platform's own fields.
    U8 storm_control_unit; // 152
    Bytes<67> unread_153;
    StoredRecord<StormControlState> storm_control[8]; // 220  of NPs 0 to 7

    using R = BridgePortContext;
    using Fields =
        l2fib::Fields<&R::unread_0, &R::state, &R::pi_xid, &R::bridge_id, &R::shg_id, &R::unread_17, &R::unread_20,
                      &R::mac_limit, &R::num_static_macs, &R::flags, &R::unread_36, &R::slot_mask, &R::unread_48,
                      &R::unread_60, &R::unread_62, &R::unread_64, &R::features, &R::unknown_unicast_rate,
                      &R::broadcast_rate, &R::multicast_rate, &R::np_flood_mask, &R::np_flood_mask_old, &R::unread_104,
                      &R::unread_106, &R::lb_type, &R::p2mp_role, &R::unread_116, &R::last_notification, &R::unread_128,
                      &R::unread_132, &R::unread_140, &R::unread_144, &R::unread_148, &R::storm_control_unit,
                      &R::unread_153, &R::storm_control>;
};
static_assert(sizeof(BridgePortContext) == 2588 && offsetof(BridgePortContext, features) == 76 &&
              offsetof(BridgePortContext, unread_148) == 148);

} // namespace l2fib
