// A member of a bridge domain, as one NP floods to it. The show data has two copies of each member.
#pragma once

#include "common/output.h"
#include "common/record.h"

#include <cstddef>
#include <span>

namespace l2fib
{

struct BridgeMemberRecord {
    // Other flags than those of BportEntry.
    enum Flag : unsigned { irl_bport = 30, evpn_ole = 29, evpn_label_hash = 27 };

    Bytes<4> unread_0;
    HardwareFlags<one_bit(10)> flags; //  4
    U32 xid;                          //  8
    U32 unread_12[6];
    U32 label; // 36
    Bytes<2> unread_40;
    U16 ldi;        // 42
    U8 lag_hash;    // 44
    U8 nr_ldi_hash; // 45
    U8 r_ldi_hash;  // 46
    U8 unread_47;

    using R = BridgeMemberRecord;
    using Fields = l2fib::Fields<&R::unread_0, &R::flags, &R::xid, &R::unread_12, &R::label, &R::unread_40, &R::ldi,
                                 &R::lag_hash, &R::nr_ldi_hash, &R::r_ldi_hash, &R::unread_47>;
};
static_assert(sizeof(BridgeMemberRecord) == 48 && offsetof(BridgeMemberRecord, ldi) == 42);

constexpr std::uint32_t bridge_member_copies = 2;

/// Prints both copies of a member; `irl_shg0_bound_members` is the NP's.
void print_bridge_member(Output &out, std::uint32_t level, std::uint32_t member,
                         std::span<Received<BridgeMemberRecord>> copies, std::uint32_t irl_shg0_bound_members);

/// Prints both copies of a member that is a pseudowire over a BVI.
void print_pw_bvi_member(Output &out, std::uint32_t level, std::uint32_t member,
                         std::span<Received<BridgeMemberRecord>> copies);

} // namespace l2fib
