// The RP's context of a MAC address of a bridge.
#pragma once

#include "common/stored.h"

#include <cstddef>

namespace l2fib
{

struct BridgeMacContext {
    enum Flag : unsigned { alive_check = 0, global_xid = 1, pbb_mac_mapping = 3, evpn = 8 };

    U32 version;
    U32 state;                             //   4
    FlagWord<one_bit(12), wide(20)> flags; //   8
    U16 bridge_id;                         //  12
    Bytes<6> mac;                          //  14

    // Converted by the detail view alone.
    U16 unread_20;
    Bytes<2> unread_22;
    U32 xid; //  24
    Bytes<12> unread_28;

    // The platform's own fields: the hardware view converts them.
    FlagByte<one_bit(1), wide(2), one_bit(1), wide(4)> unread_40;
    Bytes<35> unread_41;
    U32 unread_76;
    Bytes<2> unread_80;
    U8 bridge_learn_key; //  82
    U8 port_learn_key;   //  83
    Bytes<32> unread_84;

    void to_host();
};
static_assert(sizeof(BridgeMacContext) == 116 && offsetof(BridgeMacContext, port_learn_key) == 83);

} // namespace l2fib
