// What the NPs hold for a pseudowire (PW).
#pragma once

#include "common/output.h"
#include "common/show_data.h"
#include "hw/storm_control.h"
#include "hw/xid_entry.h"
#include "rp/bridge_port_context.h"
#include "rp/path.h"
#include "rp/pw_context.h"

#include <cstddef>

namespace l2fib
{

/// A PW's show data as far as every kind of PW has it.
struct PwShowData {
    PwContext context;
    U32 np_count; // 304
};
static_assert(sizeof(PwShowData) == 308);

/// What an NP holds for a point-to-point PW; np_count of them follow PwShowData.
struct PwNpRecord {
    U32 np;
    XidEntry xid; // 4
};
static_assert(sizeof(PwNpRecord) == 192);

struct Layer3Paths {
    PathState state;
    PathDescriptor primary; //  4
    PathDescriptor backup;  // 12

    void to_host() { l2fib::to_host(state, primary, backup); }
};
static_assert(sizeof(Layer3Paths) == 20);

/// What the ingress side holds for a VPLS PW, behind an XidEntry for each NP; np_count StormControlProfiles follow.
struct PwIngressBlock {
    BridgePortContext port;
    Layer3Paths paths; // 2588
};
static_assert(sizeof(PwIngressBlock) == 2608);

/// Prints a PW whose RP context is in host order. The status of the last NP's cross-connect entry, L2FIB_SHOW_ERR_ARGS,
/// L2FIB_SHOW_ERR_DATA or L2FIB_SHOW_ERR_NOMEM.
std::uint32_t zel_l2fib_pw_print_handler(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data);

} // namespace l2fib
