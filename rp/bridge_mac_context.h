// The RP's context of a MAC address of a bridge.
#pragma once

#include "common/record.h"

#include <cstddef>

namespace l2fib
{

struct BridgeMacContext {
    enum Flag : unsigned { alive_check = 0, global_xid = 1, pbb_mac_mapping = 3, evpn = 8 };

    U32 version;
    U32 state;                             //  4
    FlagWord<one_bit(12), wide(20)> flags; //  8
    U16 bridge_id;                         // 12
    Bytes<6> mac;                          // 14

    using R = BridgeMacContext;
    using Fields = l2fib::Fields<&R::version, &R::state, &R::flags, &R::bridge_id, &R::mac>;
};
static_assert(sizeof(BridgeMacContext) == 20);

/// Where the address leads to.
struct BridgeMacForwarding {
    U16 unread_0;
    Bytes<2> unread_2;
    U32 xid; // 4

    using R = BridgeMacForwarding;
    using Fields = l2fib::Fields<&R::unread_0, &R::unread_2, &R::xid>;
};

/// The platform's own fields. The hardware's view converts them.
struct BridgeMacPlatform {
    FlagByte<one_bit(1), wide(2), one_bit(1), wide(4)> unread_0;
    Bytes<35> unread_1;
    U32 unread_36;
    Bytes<2> unread_40;
    U8 bridge_learn_key; // 42
    U8 port_learn_key;   // 43
    Bytes<32> unread_44;

    using R = BridgeMacPlatform;
    using Fields = l2fib::Fields<&R::unread_0, &R::unread_1, &R::unread_36, &R::unread_40, &R::bridge_learn_key,
                                 &R::port_learn_key, &R::unread_44>;
};
static_assert(sizeof(BridgeMacPlatform) == 76 && offsetof(BridgeMacPlatform, port_learn_key) == 43);

/// The show data of a MAC address up to the hardware's part.
struct BridgeMacShowData {
    Received<BridgeMacContext> context;
    Received<BridgeMacForwarding> forwarding; // 20
    Bytes<12> unread_28;
    Received<BridgeMacPlatform> platform; // 40

    using R = BridgeMacShowData;
    using Fields = l2fib::Fields<&R::context, &R::forwarding, &R::unread_28, &R::platform>;
};
static_assert(sizeof(BridgeMacShowData) == 116 && offsetof(BridgeMacShowData, platform) == 40);

} // namespace l2fib
