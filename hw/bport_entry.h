// A bridge port as one NP forwards it.
#pragma once

#include "common/output.h"
#include "common/record.h"

namespace l2fib
{

struct BportKey {
    Bytes<2> unread_0;
    U8 is_virtual; // 2
    U8 unread_3;
    S32 bridge_id; // 4
    S32 port_id;   // 8

    using R = BportKey;
    using Fields = l2fib::Fields<&R::unread_0, &R::is_virtual, &R::unread_3, &R::bridge_id, &R::port_id>;
};
static_assert(sizeof(BportKey) == 12);

struct BportEntry {
    Bytes<4> unread_0;
    HardwareFlags<one_bit(10)> flags; // 4
    U32 xid;                          // 8
    Bytes<36> unread_12;

    using R = BportEntry;
    using Fields = l2fib::Fields<&R::unread_0, &R::flags, &R::xid, &R::unread_12>;
};
static_assert(sizeof(BportEntry) == 48);

/// A bridge port's key and, after it, its entry.
struct Bport {
    BportKey key;
    BportEntry entry;

    using R = Bport;
    using Fields = l2fib::Fields<&R::key, &R::entry>;
};

void print_bport(Output &out, std::uint32_t level, const Bport &bport);

} // namespace l2fib
