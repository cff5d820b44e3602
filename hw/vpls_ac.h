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
    XidEntry xid;
    U32 bports_present; // 188  in host order as stored
    Bport bports[2];    // 192
    UidbEntry uidb;     // 312
};
static_assert(sizeof(VplsNpRecord) == 432 && offsetof(VplsNpRecord, uidb) == 312);

/// On the ingress side an NP's storm-control profile follows.
struct VplsIngressNpRecord {
    VplsNpRecord np;
    StormControlProfile storm_control; // 432
};
static_assert(sizeof(VplsIngressNpRecord) == 452);

struct VplsEgressBlock {
    U32 np_count; // VplsNpRecords follow
};
static_assert(sizeof(VplsEgressBlock) == 4);

struct VplsIngressBlock {
    U32 np_count;
    Bytes<4> unread_4;
    BridgePortContext port; // 8; VplsIngressNpRecords follow
};
static_assert(sizeof(VplsIngressBlock) == 2596);

/// Closes the ingress block, behind its records.
struct VplsIngressTrailer {
    Bytes<4> unread_0;
};

/// Prints what the NPs hold; `block` is the hardware's part of the show data. The status of the last NP's cross-connect
/// entry, or L2FIB_SHOW_ERR_DATA.
std::uint32_t print_vpls_ac(Output &out, std::uint32_t level, std::uint32_t direction, const AcContext &ac,
                            ShowData block);

} // namespace l2fib
