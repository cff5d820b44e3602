#include "common/formatters.h"
#include "common/show_data.h"
#include "rp/ac_context.h"
#include "rp/detail.h"
#include "rp/names.h"

namespace l2fib
{

static constexpr FlagTable ac_flags{{
    {AcContext::remote_ac, "Remote AC"},
    {AcContext::remote_is_simple_ac, "Remote is Simple AC"},
    {AcContext::remote_is_pw, "Remote is PW"},
    {AcContext::remote_is_lag, "Remote is LAG"},
    {AcContext::dhcp_snoop, "DHCP Snoop"},
    {AcContext::dhcp_trusted, "DHCP Snoop Trusted"},
    {AcContext::unknown_unicast_fb, "Unknown Unicast FB"},
    {AcContext::mcast_fb, "MCast FB"},
    {AcContext::learn_limit_no_learn, "Learn Limit - No Learn"},
    {AcContext::learn_limit_drop, "Learn Limit - Drop"},
    {AcContext::no_lag_local_members, "LAG has no local member"},
    {AcContext::igmp_snoop, "IGMP Snoop"},
    {AcContext::mld_snoop, "MLD Snoop"},
    {AcContext::igmp_router_guard, "IGMP Router Guard"},
    {AcContext::mld_router_guard, "MLD Router Guard"},
    {AcContext::mac_learn_disable, "MAC Learn Disabled"},
    {AcContext::storm_control_bcast, "Storm Control BCast"},
    {AcContext::storm_control_mcast, "Storm Control MCast"},
    {AcContext::storm_control_ucast, "Storm Control UCast"},
    {AcContext::mac_limit_port_level, "Port Level MAC Limit"},
    {AcContext::is_vsp_vlan, "Is AC VSP"},
    {AcContext::facing_pbb_core, "PBB Core"},
    {AcContext::xid_unbound, "XID Unbound"},
    {AcContext::span, "SPAN"},
}};

static void print_ac(Output &out, std::uint32_t direction, std::uint8_t *show_data)
{
    const AcContext &ac = ShowData::unchecked<AcShowData>(show_data).context.to_host();

    out.first_line(1, "Platform AC context:");

    List summary{out, 1};
    print_direction(summary, direction);
    summary.item("AC: %s", service_name(ac.service));
    summary.item("State: %s", state_name(ac.state));

    print_flags(out, 2, "Flags", ac_flags, ac.flags);

    List forwarding{out, 1};
    forwarding.item("XID: 0x%08x", ac.xid);
    forwarding.item("SHG: %s", shg_text(ac.shg));
}

constexpr DetailView ac_detail{end_of<AcShowData>, print_ac};

} // namespace l2fib
