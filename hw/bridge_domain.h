// A bridge domain as one NP forwards it.
#pragma once

#include "common/output.h"
#include "common/record.h"

#include <cstddef>

namespace l2fib
{

struct BridgeDomainRecord {
    // Flags that decide more than their own text.
    enum Flag : unsigned {
        pbb_enable = 29,
        pbb_evpn_bd = 28,
        evpn_bd = 27,
        single_shg0_np = 20,
        bvi = 12,
        vni = 11,
        p2mp_tree_enabled = 6,
    };

    HardwareFlags<one_bit(29)> flags;
    U32 learn_key;     //   4
    U32 members;       //   8  the lower half counts
    U32 fgid[3];       //  12  forwarding groups of split-horizon groups 0, 1 and 2
    U32 learn_counter; //  24
    U32 mgid_index;    //  28
    U32 unread_32;
    U32 single_shg0_xid; //  36
    U32 half_age;        //  40
    U32 unread_44;
    U32 pbb_core_bridge_domain; //  48
    U32 isid;                   //  52  this and the next three: in the upper 24 bits
    U32 bvi_tcam_index;         //  56
    U32 evpn_counter;           //  60
    U32 vni_id;                 //  64
    U32 unread_68;
    Bytes<67> unread_72;
    U32 head_end_ptree_internal_label; // 139  unaligned
    U8 unread_143;

    using R = BridgeDomainRecord;
    using Fields = l2fib::Fields<&R::flags, &R::learn_key, &R::members, &R::fgid, &R::learn_counter, &R::mgid_index,
                                 &R::unread_32, &R::single_shg0_xid, &R::half_age, &R::unread_44,
                                 &R::pbb_core_bridge_domain, &R::isid, &R::bvi_tcam_index, &R::evpn_counter, &R::vni_id,
                                 &R::unread_68, &R::unread_72, &R::head_end_ptree_internal_label, &R::unread_143>;
};
static_assert(sizeof(BridgeDomainRecord) == 144 && offsetof(BridgeDomainRecord, head_end_ptree_internal_label) == 139);

/// Prints the flags of a bridge domain, and the label that the flag of a P2MP tree announces.
void print_bridge_domain_flags(Output &out, std::uint32_t level, const BridgeDomainRecord &domain);

/// Prints the values of a bridge domain.
void print_bridge_domain_values(Output &out, std::uint32_t level, const BridgeDomainRecord &domain);

} // namespace l2fib
