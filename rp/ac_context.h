// The RP's context of an attachment circuit (AC).
#pragma once

#include "common/record.h"
#include "rp/np_count.h"

#include <cstddef>

namespace l2fib
{

struct AcContext {
    enum Flag : unsigned {
        remote_ac = 0,
        remote_is_simple_ac = 2,
        remote_is_pw = 3,
        remote_is_lag = 4,
        dhcp_snoop = 5,
        dhcp_trusted = 6,
        unknown_unicast_fb = 7,
        mcast_fb = 8,
        is_lag = 9,
        no_lag_local_members = 10,
        igmp_snoop = 11,
        mld_snoop = 12,
        igmp_router_guard = 13,
        mld_router_guard = 14,
        storm_control_bcast = 15,
        storm_control_mcast = 16,
        storm_control_ucast = 17,
        mac_learn_disable = 18,
        mac_limit_port_level = 19,
        learn_limit_no_learn = 20,
        learn_limit_drop = 21,
        is_vsp_vlan = 22,
        facing_pbb_core = 23,
        xid_unbound = 24,
        span = 25,
        iw_ip_mode = 26,
        iw_ip_punt = 27,
        erp_raps_chan_enable = 28,
        erp_prot_exclusion = 29,
        is_pwhe = 30,
    };

    U32 unread_0;
    U32 service;  //   4
    U32 state;    //   8
    U32 ifhandle; //  12
    U16 rack_id;  //  16
    Bytes<2> unread_18;
    U32 sfp;                 //  20
    U32 xid;                 //  24
    U32 bridge_id;           //  28
    U32 shg;                 //  32
    U32 mac_limit;           //  36
    U16 main_interface_type; //  40
    Bytes<2> unread_42;
    U32 unread_44;
    Bytes<16> unread_48;
    FlagWord<one_bit(32)> flags; //  64
    Bytes<12> unread_68;
    U16 unread_80;
    Bytes<14> unread_82;
    StoredU32 requested_np; //  96  0 to 9 asks for that NP, more for all of them
    Bytes<4> unread_100;

    using R = AcContext;
    using Fields = l2fib::Fields<&R::unread_0, &R::service, &R::state, &R::ifhandle, &R::rack_id, &R::unread_18,
                                 &R::sfp, &R::xid, &R::bridge_id, &R::shg, &R::mac_limit, &R::main_interface_type,
                                 &R::unread_42, &R::unread_44, &R::unread_48, &R::flags, &R::unread_68, &R::unread_80,
                                 &R::unread_82, &R::requested_np, &R::unread_100>;
};
static_assert(sizeof(AcContext) == 104 && offsetof(AcContext, flags) == 64);

/// An AC's show data as far as its size is fixed; np_entry_size bytes for each NP follow.
struct AcShowData {
    NpCount np_count;
    Received<AcContext> context; // 2

    using R = AcShowData;
    using Fields = l2fib::Fields<&R::np_count, &R::context>;

    /// Where the hardware's part begins. In show data for the private view, the bridge port of a VPLS AC is there.
    [[nodiscard]] std::uint64_t hardware_offset() const
    {
        return sizeof(AcShowData) + np_entry_size * np_count.low_byte();
    }
};
static_assert(sizeof(AcShowData) == 106);

} // namespace l2fib
