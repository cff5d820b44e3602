// What the NPs hold for a pseudowire (PW).
#pragma once

#include "hw/xid_entry.h"
#include "rp/bridge_port_context.h"
#include "rp/path.h"
#include "rp/pw_context.h"

#include <cstddef>

namespace l2fib
{

/// The beginning of a PW's show data, which is the same for every kind of PW.
struct PwHardwareShowData {
    PwShowData rp;
    BigU32 np_count; // 304

    using R = PwHardwareShowData;
    using Fields = l2fib::Fields<&R::rp, &R::np_count>;
};
static_assert(sizeof(PwHardwareShowData) == 308);

/// What an NP holds for a point-to-point PW; np_count of them follow.
struct PwNpRecord {
    BigU32 np;
    Received<XidEntry> xid; // 4

    using R = PwNpRecord;
    using Fields = l2fib::Fields<&R::np, &R::xid>;
};
static_assert(sizeof(PwNpRecord) == 192);

struct Layer3Paths {
    PathState state;
    PathDescriptor primary; //  4
    PathDescriptor backup;  // 12

    using R = Layer3Paths;
    using Fields = l2fib::Fields<&R::state, &R::primary, &R::backup>;
};
static_assert(sizeof(Layer3Paths) == 20);

/// What the ingress side holds for a VPLS PW, after an XidEntry for each NP; np_count StormControlProfiles follow.
struct PwIngressBlock {
    Received<BridgePortContext> port;
    Received<Layer3Paths> paths; // 2588

    using R = PwIngressBlock;
    using Fields = l2fib::Fields<&R::port, &R::paths>;
};
static_assert(sizeof(PwIngressBlock) == 2608);

} // namespace l2fib
