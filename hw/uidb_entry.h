// An interface's uIDB entry: what one NP does with the packets of an attachment circuit, in one direction.
#pragma once

#include "common/output.h"
#include "common/record.h"

#include <cstddef>

namespace l2fib
{

/// A flag of the entry, by its byte of the record and its mask there.
struct UidbFlag {
    unsigned byte;
    std::uint8_t mask;
};

struct UidbEntry {
    // Flags that decide which lines appear, whether or not the direction lists them.
    static constexpr UidbFlag bd_lookup{105, 0x40};
    static constexpr UidbFlag cfm{105, 0x10};
    static constexpr UidbFlag ipiw_mode{108, 0x20};
    static constexpr UidbFlag bng_l2tp_mode{110, 0x10};
    static constexpr UidbFlag pre_tag_1_valid{112, 0x02};
    static constexpr UidbFlag pre_tag_2_valid{112, 0x01};
    static constexpr UidbFlag punt_cdp_main{113, 0x20};
    static constexpr UidbFlag punt_stp_1ad_main{113, 0x02};
    static constexpr UidbFlag punt_stp_1d_main{114, 0x80};
    static constexpr UidbFlag group_selector{117, 0x80};
    static constexpr UidbFlag vpws_dest_lag{118, 0x80};
    static constexpr UidbFlag vpws_dest_pw{118, 0x40};
    static constexpr UidbFlag bng_vpws_pw_l2tp{118, 0x20};

    U32 retrieval_status;   //   0  0, or why the NP's entry could not be read
    U32 bvi_source_xid;     //   4
    U32 l2tp_session;       //   8
    U32 statistics_pointer; //  12
    Bytes<4> unread_16;
    U32 ifhandle;              //  20
    U32 mstp_default_ifhandle; //  24
    U32 destination_xid;       //  28
    U16 l2_acl;                //  32
    Bytes<2> unread_34;
    U32 bridge_domain;     //  36
    U32 bvi_bridge_domain; //  40
    U16 ipv4_acl;          //  44
    U16 ipv6_acl;          //  46
    Bytes<2> unread_48;
    U16 lns_session; //  50
    U16 lns_tunnel;  //  52
    Bytes<4> unread_54;
    U16 pppoe_session; //  58
    U16 qos;           //  60
    Bytes<4> unread_62;
    U16 uidb_index;          //  66
    U16 pre_vlan1;           //  68
    U16 pre_vlan1_ethertype; //  70
    U16 vlan1;               //  72
    U16 vlan1_ethertype;     //  74
    U16 pre_vlan2;           //  76
    U16 pre_vlan2_ethertype; //  78
    U16 vlan2;               //  80
    U16 vlan2_ethertype;     //  82
    U16 lag_pointer;         //  84
    U8 l2_acl_format;        //  86
    U8 cfm_threshold;        //  87
    U8 unread_88;
    U8 load_balance_hash; //  89
    U8 num_vlans;         //  90
    U8 unread_91;
    U8 ppp_class_of_service; //  92
    U8 qos_format;           //  93
    U8 source_port;          //  94
    U8 search_vlan_vector;   //  95
    U8 tos;                  //  96
    U8 shg;                  //  97
    U8 wire_exp_tag;         //  98
    Bytes<6> mac;            //  99
    Bytes<14> flags;         // 105  by byte and mask, as received
    U8 unread_119;

    using R = UidbEntry;
    using Fields =
        l2fib::Fields<&R::retrieval_status, &R::bvi_source_xid, &R::l2tp_session, &R::statistics_pointer, &R::unread_16,
                      &R::ifhandle, &R::mstp_default_ifhandle, &R::destination_xid, &R::l2_acl, &R::unread_34,
                      &R::bridge_domain, &R::bvi_bridge_domain, &R::ipv4_acl, &R::ipv6_acl, &R::unread_48,
                      &R::lns_session, &R::lns_tunnel, &R::unread_54, &R::pppoe_session, &R::qos, &R::unread_62,
                      &R::uidb_index, &R::pre_vlan1, &R::pre_vlan1_ethertype, &R::vlan1, &R::vlan1_ethertype,
                      &R::pre_vlan2, &R::pre_vlan2_ethertype, &R::vlan2, &R::vlan2_ethertype, &R::lag_pointer,
                      &R::l2_acl_format, &R::cfm_threshold, &R::unread_88, &R::load_balance_hash, &R::num_vlans,
                      &R::unread_91, &R::ppp_class_of_service, &R::qos_format, &R::source_port, &R::search_vlan_vector,
                      &R::tos, &R::shg, &R::wire_exp_tag, &R::mac, &R::flags, &R::unread_119>;
};
static_assert(sizeof(UidbEntry) == 120 && offsetof(UidbEntry, mac) == 99 && offsetof(UidbEntry, flags) == 105);

/// Prints an NP's entry for L2FIB_INGRESS or L2FIB_EGRESS. `service` is the AC's: on the egress side of service 0,
/// nothing is said of an entry that could not be read.
void show_uidb_entry(Output &out, std::uint32_t level, std::uint32_t direction, std::uint32_t service,
                     Received<UidbEntry> &entry);

} // namespace l2fib
