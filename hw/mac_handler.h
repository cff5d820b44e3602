// What the hardware holds for a MAC address of a bridge.
#pragma once

#include "common/output.h"
#include "common/show_data.h"
#include "rp/bridge_mac_context.h"

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
};
static_assert(sizeof(MacEntry) == 56 && offsetof(MacEntry, learned_vlan) == 47);

struct BridgeMacShowData {
    BridgeMacContext context;
    MacEntry entry; // 116
};
static_assert(sizeof(BridgeMacShowData) == 172);

/// Prints a MAC address whose RP context is in host order. Statuses: 0, L2FIB_SHOW_ERR_ARGS, L2FIB_SHOW_ERR_DATA.
std::uint32_t zel_l2fib_mac_print_handler(Output &out, std::uint32_t level, ShowData data);

} // namespace l2fib
