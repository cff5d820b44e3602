// The RP's context of a pseudowire (PW), object type MPLS.
#pragma once

#include "common/stored.h"

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
    enum LayerFlag : unsigned { layer_invalid = 0 };

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

    // The platform's own fields: the hardware views convert them, not the RP's.
    U32 platform_words[2]; // 228
    Bytes<64> unread_236;
    U8 port_learn_key;                         // 300
    FlagByte<one_bit(1), wide(7)> layer_flags; // 301
    Bytes<2> unread_302;

    void to_host();
};
static_assert(sizeof(PwContext) == 304 && offsetof(PwContext, flags) == 216 && offsetof(PwContext, layer_flags) == 301);

} // namespace l2fib
