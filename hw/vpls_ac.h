// An AC of a bridge domain: for each NP its uIDB entry, its cross-connect entry and its bridge ports, and on the
// ingress side what the line card knows of storm control.
#pragma once

#include "common/output.h"
#include "common/show_data.h"
#include "hw/bport_entry.h"
#include "hw/storm_control.h"
#include "hw/uidb_entry.h"
#include "hw/xid_entry.h"
#include "rp/ac_context.h"
#include "rp/bridge_port_context.h"

namespace l2fib
{

/// What one NP holds.
struct VplsNpRecord {
    Received<XidEntry> xid;
    StoredU32 bports_present;  // 188
    Received<Bport> bports[2]; // 192
    Received<UidbEntry> uidb;  // 312

    using R = VplsNpRecord;
    using Fields = l2fib::Fields<&R::xid, &R::bports_present, &R::bports, &R::uidb>;
};
static_assert(sizeof(VplsNpRecord) == 432 && offsetof(VplsNpRecord, uidb) == 312);

/// On the ingress side an NP's storm-control profile follows.
struct VplsIngressNpRecord {
    VplsNpRecord np;
    Received<StormControlProfile> storm_control; // 432

    using R = VplsIngressNpRecord;
    using Fields = l2fib::Fields<&R::np, &R::storm_control>;
};
static_assert(sizeof(VplsIngressNpRecord) == 452);

/// The number of NPs that the line card has written records for. The AC's own NP count may be another.
struct VplsNpCount {
    U32 count;

    using R = VplsNpCount;
    using Fields = l2fib::Fields<&R::count>;
};

struct VplsEgressBlock {
    Received<VplsNpCount> np_count; // VplsNpRecords follow

    using R = VplsEgressBlock;
    using Fields = l2fib::Fields<&R::np_count>;
};
static_assert(sizeof(VplsEgressBlock) == 4);

struct VplsIngressBlock {
    Received<VplsNpCount> np_count;
    Bytes<4> unread_4;
    Received<BridgePortContext> port; // 8; VplsIngressNpRecords follow

    using R = VplsIngressBlock;
    using Fields = l2fib::Fields<&R::np_count, &R::unread_4, &R::port>;
};
static_assert(sizeof(VplsIngressBlock) == 2596);

/// The end of the ingress block, after its records.
struct VplsIngressTrailer {
    Bytes<4> unread_0;

    using R = VplsIngressTrailer;
    using Fields = l2fib::Fields<&R::unread_0>;
};

/// Prints what the NPs hold; `block` is the hardware's part of the show data. Statuses: 0, L2FIB_SHOW_ERR_DATA.
std::uint32_t print_vpls_ac(Output &out, std::uint32_t level, std::uint32_t direction, const AcContext &ac,
                            ShowData block);

} // namespace l2fib
