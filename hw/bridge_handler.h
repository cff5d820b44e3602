// What the HAL and the NPs hold for a bridge.
#pragma once

#include "common/output.h"
#include "common/show_data.h"
#include "common/stored.h"

namespace l2fib
{

/// The hardware's part of a bridge, in this order:
///
///   BridgeFeatureBlock1, a BridgeFeatureBlock1Np for each NP   when the bridge has feature block 1
///   BridgeMemberCounts
///   a StormControlState and then a StormControlProfile for each NP   ingress, when the bridge has feature block 2
///   for each NP, a BridgeDomainRecord and its members, two BridgeMemberRecords each
///   the PW-over-BVI members, two BridgeMemberRecords each
struct BridgeFeatureBlock1 {
    Bytes<160> unread_0;
    U32 unread_160;
    U32 pw_over_bvi[3]; // 164  of split-horizon groups 0, 1 and 2

    void to_host() { l2fib::to_host(unread_160, pw_over_bvi); }
};
static_assert(sizeof(BridgeFeatureBlock1) == 176);

struct BridgeFeatureBlock1Np {
    U32 pbb_statistics_pointer;
    U32 evpn_statistics_pointer; //  4
    U32 bvi_tcam_index;          //  8
    U16 pw_over_bvi_members[3];  // 12  of split-horizon groups 0, 1 and 2
    Bytes<2> unread_18;

    /// Counted in 16 bits, as the producer does.
    [[nodiscard]] std::uint16_t members() const
    {
        return static_cast<std::uint16_t>(pw_over_bvi_members[0] + pw_over_bvi_members[1] + pw_over_bvi_members[2]);
    }

    void to_host()
    {
        l2fib::to_host(pbb_statistics_pointer, evpn_statistics_pointer, bvi_tcam_index, pw_over_bvi_members);
    }
};
static_assert(sizeof(BridgeFeatureBlock1Np) == 20);

struct BridgeMemberCounts {
    U16 members; // of all NPs together
    U16 pw_over_bvi_members;

    void to_host() { l2fib::to_host(members, pw_over_bvi_members); }
};
static_assert(sizeof(BridgeMemberCounts) == 4);

/// Prints the HAL's context of a bridge whose RP context is in host order, and then what the NPs hold. Statuses: 0,
/// L2FIB_SHOW_ERR_ARGS, L2FIB_SHOW_ERR_DATA, L2FIB_SHOW_ERR_NOMEM.
std::uint32_t print_bridge_with_hal_context(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data);

/// The part of it that the NPs hold.
std::uint32_t zel_l2fib_brg_print_handler(Output &out, std::uint32_t level, std::uint32_t direction, ShowData data);

} // namespace l2fib
