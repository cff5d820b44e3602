#include "common/show_data.h"
#include "common/two_columns.h"
#include "rp/private.h"
#include "rp/pw_context.h"

namespace l2fib
{

static constexpr FlagTable pw_flags{{
    {PwContext::control_word, "cw                   "},
    {PwContext::inband_vccv, "inband vccv         "},
    {PwContext::seq_num_chk, "seq num chk          "},
    {PwContext::seq_num_add, "seq num add         "},
    {PwContext::unknown_unicast_fb, "unknown unicast fb   "},
    {PwContext::mcast_fb, "mcast fb            "},
    {PwContext::learn_limit_no_learn, "learn limit no learn "},
    {PwContext::learn_limit_drop, "learn limit drop    "},
    {PwContext::mac_learn_disable, "mac learn disable    "},
    {PwContext::storm_control_bcast, "storm control bcast "},
    {PwContext::storm_control_mcast, "storm control mcast  "},
    {PwContext::storm_control_ucast, "storm control ucast "},
    {PwContext::mac_limit_port_level, "mac limit port level "},
    {PwContext::span, "span                "},
    {PwContext::dhcp_snoop, "dhcp snoop           "},
    {PwContext::dhcp_trusted, "dhcp trusted        "},
    {PwContext::lb_vc_enabled, "lb vc enabled        "},
    {PwContext::flow_label_impose, "flow label impose   "},
}};

static void print_pw(Output &out, std::uint8_t *show_data)
{
    const PwContext &pw = ShowData::unchecked<PwShowData>(show_data).context.to_host();

    out.text("\nPW context\n----------------\n");
    TwoColumns values{out, "\t\t"};
    values.item("bridge id           : %d", pw.bridge_id);
    values.item("mac limit            : %d", pw.mac_limit);

    // Labels and hashes are long numbers: one tab is enough after them.
    TwoColumns long_values{out, "\t"};
    long_values.item("vc label            : %d", called("imposition_label", pw.vc_label));
    long_values.item("nr ldi hash          : %d", pw.nr_ldi_hash);
    long_values.item("r ldi hash          : %d", pw.r_ldi_hash);
    long_values.item("lag hash             : %d", pw.lag_hash);

    values.item("shg                 : %d", called("shg_raw", pw.shg));
    values.flags(pw_flags, pw.flags);
    values.item("reserved             : %d", pw.flags.get(PwContext::reserved));
}

constexpr PrivateView pw_private{end_of<PwShowData>, print_pw};

} // namespace l2fib
