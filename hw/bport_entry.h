// A bridge port as one NP forwards it.
#pragma once

#include "common/output.h"
#include "common/stored.h"

namespace l2fib
{

struct BportKey {
    Bytes<2> unread_0;
    U8 is_virtual; // 2
    U8 unread_3;
    S32 bridge_id; // 4
    S32 port_id;   // 8
};
static_assert(sizeof(BportKey) == 12);

struct BportEntry {
    Bytes<4> unread_0;
    HardwareFlags<one_bit(10)> flags; // 4
    U32 xid;                          // 8
    Bytes<36> unread_12;
};
static_assert(sizeof(BportEntry) == 48);

/// A bridge port's key and, behind it, its entry.
struct Bport {
    BportKey key;
    BportEntry entry;
};

/// Prints a bridge port; nothing for a null entry.
void zel_l2fib_print_bport_entry(Output &out, std::uint32_t level, BportKey *key, BportEntry *entry);

} // namespace l2fib
