// What the hardware holds for a MAC address of a bridge.
#pragma once

#include "common/record.h"

#include <cstddef>

namespace l2fib
{

struct MacEntry {
    enum Flag : unsigned { remote_mac = 31 };

    HardwareFlags<one_bit(12), wide(2), one_bit(3)> flags;
    U32 xid;                     //  4
    U32 bvi_tcam_index;          //  8
    U32 bd_learn_key;            // 12
    U32 xid_learn_key;           // 16
    U32 learn_limit_count_index; // 20
    U32 unread_24[2];
    Bytes<6> bmac;  // 32  backbone MAC
    U16 esi;        // 38
    U16 ldi;        // 40
    U32 evpn_label; // 42  from here on unaligned
    U8 unread_46;
    U16 learned_vlan; // 47
    U8 unread_49;
    U32 unread_50;
    U16 unread_54;

    using R = MacEntry;
    using Fields = l2fib::Fields<&R::flags, &R::xid, &R::bvi_tcam_index, &R::bd_learn_key, &R::xid_learn_key,
                                 &R::learn_limit_count_index, &R::unread_24, &R::bmac, &R::esi, &R::ldi, &R::evpn_label,
                                 &R::unread_46, &R::learned_vlan, &R::unread_49, &R::unread_50, &R::unread_54>;
};
static_assert(sizeof(MacEntry) == 56 && offsetof(MacEntry, learned_vlan) == 47);

} // namespace l2fib
