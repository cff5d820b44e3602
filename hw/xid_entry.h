// A cross-connect (XID) as one NP forwards it.
#pragma once

#include "common/output.h"
#include "common/record.h"

#include <cstddef>

namespace l2fib
{

struct XidEntry {
    enum Type : std::uint32_t { type_ac = 1, type_bundle = 2, type_pw = 3, type_pw_control_word = 4 };

    // Bits that decide more than their own text.
    enum Flag : unsigned {
        pw_vc_type_4 = 28,
        load_balance_flow_based = 21,
        broadcast_storm_control = 20,
        multicast_storm_control = 19,
        unknown_unicast_storm_control = 18,
        vpls = 17,
    };
    enum Translation : unsigned { ingress_translation = 31, egress_translation = 30, remote_pw = 29 };

    U32 vpn_id;
    U32 virtual_port;                                       //   4  an index, for source and destination alike
    U32 next_hop_index;                                     //   8  in the software's table
    HardwareFlags<one_bit(3), wide(5)> translation;         //  12
    HardwareFlags<one_bit(18), wide(2), one_bit(12)> flags; //  16
    Bytes<4> unread_20;
    U32 type;                //  24
    U32 remote_type;         //  28  0: none
    S32 learn_count_limit;   //  32
    U32 learn_count_pointer; //  36
    U32 learn_key;           //  40
    U32 xc_id;               //  44
    U32 shg;                 //  48
    Bytes<85> unread_52;
    U32 bridge_domain;     // 137  from here on unaligned
    U32 main_ifhandle;     // 141
    U8 msti;               // 145
    U32 efp_egress_hash;   // 146
    U32 uidb_index;        // 150
    S32 lag_id;            // 154
    U32 imposition_label;  // 158
    U32 disposition_label; // 162
    S32 nh_index;          // 166
    S32 tunnel_interface;  // 170  the ASIC's
    Bytes<14> unread_174;

    using R = XidEntry;
    using Fields =
        l2fib::Fields<&R::vpn_id, &R::virtual_port, &R::next_hop_index, &R::translation, &R::flags, &R::unread_20,
                      &R::type, &R::remote_type, &R::learn_count_limit, &R::learn_count_pointer, &R::learn_key,
                      &R::xc_id, &R::shg, &R::unread_52, &R::bridge_domain, &R::main_ifhandle, &R::msti,
                      &R::efp_egress_hash, &R::uidb_index, &R::lag_id, &R::imposition_label, &R::disposition_label,
                      &R::nh_index, &R::tunnel_interface, &R::unread_174>;
};
static_assert(sizeof(XidEntry) == 188 && offsetof(XidEntry, bridge_domain) == 137 &&
              offsetof(XidEntry, tunnel_interface) == 170);

/// Prints the entry that an NP holds for a cross-connect.
void print_xid_entry(Output &out, std::uint32_t level, std::uint32_t xid, const XidEntry &entry);

} // namespace l2fib
