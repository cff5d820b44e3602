// What the NPs hold for a bridge.
#pragma once

#include "common/record.h"

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

    using R = BridgeFeatureBlock1;
    using Fields = l2fib::Fields<&R::unread_0, &R::unread_160, &R::pw_over_bvi>;
};
static_assert(sizeof(BridgeFeatureBlock1) == 176);

struct BridgeFeatureBlock1Np {
    U32 pbb_statistics_pointer;
    U32 evpn_statistics_pointer; //  4
    U32 bvi_tcam_index;          //  8
    U16 pw_over_bvi_members[3];  // 12  of split-horizon groups 0, 1 and 2
    Bytes<2> unread_18;

    using R = BridgeFeatureBlock1Np;
    using Fields = l2fib::Fields<&R::pbb_statistics_pointer, &R::evpn_statistics_pointer, &R::bvi_tcam_index,
                                 &R::pw_over_bvi_members, &R::unread_18>;

    /// The sum has 16 bits, as in the producer.
    [[nodiscard]] std::uint16_t members() const
    {
        return static_cast<std::uint16_t>(pw_over_bvi_members[0] + pw_over_bvi_members[1] + pw_over_bvi_members[2]);
    }
};
static_assert(sizeof(BridgeFeatureBlock1Np) == 20);

struct BridgeMemberCounts {
    U16 members; // of all NPs together
    U16 pw_over_bvi_members;

    using R = BridgeMemberCounts;
    using Fields = l2fib::Fields<&R::members, &R::pw_over_bvi_members>;
};
static_assert(sizeof(BridgeMemberCounts) == 4);

} // namespace l2fib
