// The RP's context of a pseudowire (PW), object type MPLS.
#pragma once

#include "common/record.h"

#include <cstddef>

namespace l2fib
{

struct PwContext {
    enum Flag : unsigned {
        control_word = 0,
        inband_vccv = 1,
        seq_num_chk = 2,
        seq_num_add = 3,
        unknown_unicast_fb = 4,
        mcast_fb = 5,
        learn_limit_no_learn = 6,
        learn_limit_drop = 7,
        mac_learn_disable = 8,
        storm_control_bcast = 9,
        storm_control_mcast = 10,
        storm_control_ucast = 11,
        mac_limit_port_level = 12,
        span = 13,
        dhcp_snoop = 14,
        dhcp_trusted = 15,
        lb_vc_enabled = 16,
        flow_label_impose = 17,
        reserved = 23, // 9 bits
    };

    U32 unread_0;
    U32 service; //   4
    U32 state;   //   8
    U32 unread_12;
    U32 xid;           //  16
    U32 bridge_id;     //  20
    U32 mac_limit;     //  24
    U32 vc_label;      //  28
    U32 disp_vc_label; //  32
    U32 unread_36[7];
    U32 nr_ldi_hash; //  64
    U32 r_ldi_hash;  //  68
    U32 lag_hash;    //  72
    U32 shg;         //  76
    Bytes<136> unread_80;
    FlagWord<one_bit(23), wide(9)> flags; // 216
    U16 unread_220;
    Bytes<2> unread_222;
    U32 unread_224;

    using R = PwContext;
    using Fields =
        l2fib::Fields<&R::unread_0, &R::service, &R::state, &R::unread_12, &R::xid, &R::bridge_id, &R::mac_limit,
                      &R::vc_label, &R::disp_vc_label, &R::unread_36, &R::nr_ldi_hash, &R::r_ldi_hash, &R::lag_hash,
                      &R::shg, &R::unread_80, &R::flags, &R::unread_220, &R::unread_222, &R::unread_224>;
};
static_assert(sizeof(PwContext) == 228 && offsetof(PwContext, flags) == 216);

/// The platform's own fields. The hardware's view converts them.
struct PwPlatform {
    enum LayerFlag : unsigned { layer_invalid = 0 };

    U32 unread_0[2];
    Bytes<64> unread_8;
    U8 port_learn_key;                         // 72
    FlagByte<one_bit(1), wide(7)> layer_flags; // 73
    Bytes<2> unread_74;

    using R = PwPlatform;
    using Fields = l2fib::Fields<&R::unread_0, &R::unread_8, &R::port_learn_key, &R::layer_flags, &R::unread_74>;
};
static_assert(sizeof(PwPlatform) == 76 && offsetof(PwPlatform, layer_flags) == 73);

/// The show data of a PW up to the hardware's part.
struct PwShowData {
    Received<PwContext> context;
    Received<PwPlatform> platform; // 228

    using R = PwShowData;
    using Fields = l2fib::Fields<&R::context, &R::platform>;
};
static_assert(sizeof(PwShowData) == 304);

} // namespace l2fib
