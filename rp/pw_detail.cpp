#include "common/formatters.h"
#include "common/show_data.h"
#include "rp/detail.h"
#include "rp/names.h"
#include "rp/pw_context.h"

namespace l2fib
{

static constexpr FlagTable pw_flags{{
    {PwContext::control_word, "Control Word"},
    {PwContext::inband_vccv, "Inband VCCV"},
    {PwContext::seq_num_chk, "Seq Num Chk"},
    {PwContext::seq_num_add, "Seq Num Add"},
    {PwContext::unknown_unicast_fb, "Unknown Unicast FB"},
    {PwContext::mcast_fb, "Mcast FB"},
    {PwContext::dhcp_snoop, "DHCP Snoop"},
    {PwContext::dhcp_trusted, "DHCP Trusted"},
    {PwContext::learn_limit_no_learn, "Learn Limit No Learn"},
    {PwContext::learn_limit_drop, "Learn Limit Drop"},
    {PwContext::mac_learn_disable, "MAC Learn Disable"},
    {PwContext::storm_control_bcast, "Storm Control BCast"},
    {PwContext::storm_control_mcast, "Storm Control MCast"},
    {PwContext::storm_control_ucast, "Storm Control UCast"},
    {PwContext::mac_limit_port_level, "MAC Limit Port Level"},
    {PwContext::span, "SPAN"},
    {PwContext::flow_label_impose, "Flow Label imposition"},
    {PwContext::lb_vc_enabled, "vc label lb"},
}};

static void print_pw(Output &out, std::uint32_t direction, std::uint8_t *show_data)
{
    const PwContext &pw = ShowData::unchecked<PwShowData>(show_data).context.to_host();

    out.first_line(1, "Platform PW context:");

    List summary{out, 1};
    print_direction(summary, direction);
    summary.item("PW: %s", service_name(pw.service));
    summary.item("State: %s", state_name(pw.state));

    List forwarding{out, 1};
    forwarding.item("XID: 0x%08x", pw.xid);
    forwarding.item("bridge: %d", pw.bridge_id);
    forwarding.item("MAC limit: %d", pw.mac_limit);
    forwarding.item("disp_vc_label: %d", called("disposition_label", pw.disp_vc_label));
    forwarding.item("vc label: %d", called("imposition_label", pw.vc_label));
    forwarding.item("nr_ldi_hash: 0x%x", pw.nr_ldi_hash);
    forwarding.item("r_ldi_hash: 0x%x", pw.r_ldi_hash);
    forwarding.item("lag_hash: 0x%x", pw.lag_hash);
    forwarding.item("SHG: %s", shg_text(pw.shg));

    print_flags(out, 2, "Flags", pw_flags, pw.flags);
}

constexpr DetailView pw_detail{end_of<PwShowData>, print_pw};

} // namespace l2fib
