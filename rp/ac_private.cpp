#include "common/show_data.h"
#include "common/two_columns.h"
#include "rp/ac_context.h"
#include "rp/bridge_port_context.h"
#include "rp/names.h"
#include "rp/private.h"

namespace l2fib
{

static constexpr FlagTable ac_flags{{
    {AcContext::remote_ac, "remote ac            "},
    {AcContext::remote_is_simple_ac, "remote is simple ac  "},
    {AcContext::remote_is_pw, "remote is PW         "},
    {AcContext::remote_is_lag, "remote is lag        "},
    {AcContext::dhcp_snoop, "dhcp snoop           "},
    {AcContext::dhcp_trusted, "dhcp trusted         "},
    {AcContext::unknown_unicast_fb, "unknown unicast fb   "},
    {AcContext::mcast_fb, "mcast fd             "},
    {AcContext::is_lag, "is lag               "},
    {AcContext::no_lag_local_members, "no lag local members "},
    {AcContext::igmp_snoop, "igmp snoop en        "},
    {AcContext::mld_snoop, "mld snoop en         "},
    {AcContext::storm_control_bcast, "storm comtrol bcast  "},
    {AcContext::storm_control_mcast, "storm control mcast  "},
    {AcContext::storm_control_ucast, "storm control ucast  "},
    {AcContext::mac_learn_disable, "mac learn disable    "},
    {AcContext::mac_limit_port_level, "mac limit port level "},
    {AcContext::learn_limit_no_learn, "learn limit no learn "},
    {AcContext::learn_limit_drop, "learn limit drop     "},
    {AcContext::is_vsp_vlan, "is vsp vlan            "}, // two columns wider than the rest
    {AcContext::facing_pbb_core, "facing pbb core      "},
    {AcContext::xid_unbound, "xid unbound          "},
    {AcContext::span, "span                 "},
    {AcContext::iw_ip_mode, "iw ip mode           "},
    {AcContext::iw_ip_punt, "iw ip punt           "},
    {AcContext::erp_raps_chan_enable, "erp raps chan enable "},
    {AcContext::erp_prot_exclusion, "erp prot exclusion   "},
    {AcContext::is_pwhe, "is pwhe              "},
}};

static void print_ac(Output &out, const AcContext &ac)
{
    out.text("\nAC Context\n----------\n");
    TwoColumns values{out, "\t "};
    values.line("ifhandle             : 0x%0X", ac.ifhandle);
    values.item("Rack ID              : %d", ac.rack_id);
    values.item("sfp                  : %d", ac.sfp);
    values.item("bridge_id            : %d", ac.bridge_id);
    values.item("shg                  : %d", called("shg_raw", ac.shg));
    values.item("mac limit            : %d", ac.mac_limit);
    values.item("main interface type  : %d", ac.main_interface_type);
    values.flags(ac_flags, ac.flags);
}

static void print_bridge_port(Output &out, const BridgePortContext &port)
{
    const Section section(out, "bridge_port");
    out.text("\nBridge Port Context\n-------------------\n");
    TwoColumns values{out, "\t\t "};
    values.line("Bridge id          : %d", port.bridge_id);
    values.item("shg id             : %d", called("shg_raw", port.shg_id));
    values.item("mac limit        : %d", port.mac_limit);
    values.item("num static macs    : %d", called("static_macs", port.num_static_macs));
    values.item("np flood mask    : %d", port.np_flood_mask);
    values.line("np flood mask old  : %d", port.np_flood_mask_old);
}

static void print_ac_and_port(Output &out, std::uint8_t *show_data)
{
    auto &parts = ShowData::unchecked<AcShowData>(show_data);
    const AcContext &ac = parts.context.to_host();
    print_ac(out, ac);

    if (ac.service == service_vpls) {
        auto &port = ShowData::unchecked<Received<BridgePortContext>>(show_data, parts.hardware_offset());
        print_bridge_port(out, port.to_host());
    }
}

/// The bridge port of a VPLS AC follows the AC.
static std::uint64_t ac_end(ShowData data)
{
    const auto *parts = data.at<AcShowData>(0);
    if (parts == nullptr || parts->context.peek<&AcContext::service>() != service_vpls) {
        return sizeof(AcShowData);
    }
    return parts->hardware_offset() + sizeof(BridgePortContext);
}

constexpr PrivateView ac_private{ac_end, print_ac_and_port};

} // namespace l2fib
