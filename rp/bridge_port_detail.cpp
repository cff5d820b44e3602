#include "common/formatters.h"
#include "common/show_data.h"
#include "rp/bridge_port_context.h"
#include "rp/detail.h"
#include "rp/names.h"

namespace l2fib
{

/// The flags that an operator sees as one list are in three words of the record.
struct PortFlag {
    enum Word : std::uint8_t { port, feature, more_feature };

    Word word;
    unsigned number;
    Literal text;
};

static constexpr PortFlag port_flags[] = {
    {PortFlag::feature, FeatureFlags::admin_down, "admin-down"},
    {PortFlag::feature, FeatureFlags::flood_disable, "flood-disble"}, // spelled so on every screen
    {PortFlag::feature, FeatureFlags::flood_unknown_unicast_disable, "flood-unknown-unicast-disable"},
    {PortFlag::feature, FeatureFlags::mac_learn_disable, "mac-learn-disable"},
    {PortFlag::feature, FeatureFlags::mac_learn_disable_cfg, "mac-learn-disable-cfg"},
    {PortFlag::feature, FeatureFlags::dhcp_snoop_enable, "dhcp-snoop-enable"},
    {PortFlag::feature, FeatureFlags::dhcp_trusted, "DHCP-trusted"},
    {PortFlag::more_feature, FeatureFlags::igmp_snoop_enable, "igmp-snoop-enable"},
    {PortFlag::feature, FeatureFlags::mac_sec_enable, "mac-sec-enable"},
    {PortFlag::feature, FeatureFlags::mac_sec_log, "mac-sec-log"},
    {PortFlag::feature, FeatureFlags::mac_limit_reached, "mac-limit-reached"},
    {PortFlag::feature, FeatureFlags::dai_enabled, "dai_enabled"},
    {PortFlag::feature, FeatureFlags::dai_ipv4, "dai-ipv4"},
    {PortFlag::feature, FeatureFlags::dai_src_mac, "dai-src-mac"},
    {PortFlag::feature, FeatureFlags::dai_dst_mac, "dai-dst-mac"},
    {PortFlag::feature, FeatureFlags::dai_log, "dai-log"},
    {PortFlag::feature, FeatureFlags::ipsg_enabled, "ipsg-enabled"},
    {PortFlag::feature, FeatureFlags::ipsg_log, "ipsg-log"},
    {PortFlag::feature, FeatureFlags::mac_port_flush_disabled, "mac-port-flush-disabled"},
    {PortFlag::port, BridgePortContext::evpn_egress_mc_blocked, "evpn-egr-mc-blocked"},
    {PortFlag::port, BridgePortContext::bundle_port, "bundle_port"},
    {PortFlag::port, BridgePortContext::msti_enabled, "MSTI enabled"},
    {PortFlag::port, BridgePortContext::msti_learn_only, "MSTI learn-only"},
    {PortFlag::port, BridgePortContext::msti_ingress_blocked, "MSTI ingress blocked"},
    {PortFlag::port, BridgePortContext::msti_egress_blocked, "MSTI egress blocked"},
};

/// In small letters, unlike the other names.
static auto p2mp_role_name(const U32 &role)
{
    static constexpr Literal names[] = {"unknown", "head", "mid", "bud", "tail"};
    return name_of(names, role, "invalid");
}

static void print_port_flags(Output &out, const BridgePortContext &port)
{
    List line{out, 2, "Flags"};
    const Flags all(out, port.flags, port.features.features, port.features.more);
    const std::uint32_t words[] = {set_flags(port.flags), set_flags(port.features.features),
                                   set_flags(port.features.more)}; // by PortFlag::Word
    for (const PortFlag &flag : port_flags) {
        if (is_set(words[flag.word], flag.number)) {
            line.item("%s", flag.text);
            all.add(flag.text);
        }
    }
    line.none_if_empty();
}

static void print_bridge_port(Output &out, std::uint32_t direction, std::uint8_t *show_data)
{
    const BridgePortContext &port = ShowData::unchecked<Received<BridgePortContext>>(show_data).to_host();

    out.first_line(1, "Platform Bridge Port context:");
    out.line(1, "Last notification sent at: %s", timestamp_text(port.last_notification));

    List summary{out, 1};
    print_direction(summary, direction);
    summary.item("State: %s", state_name(port.state));

    print_port_flags(out, port);

    const auto &features = port.features.features;
    List forwarding{out, 2};
    forwarding.item("pi_xid: 0x%08x", called("xid", port.pi_xid));
    forwarding.item_if(port.flags.test(BridgePortContext::lb_type_valid), "lb_type: %d", port.lb_type);
    forwarding.item_if(features.test(FeatureFlags::mac_sec_enable), "mac_secure_action: %d",
                       features.get(FeatureFlags::mac_secure_action));
    const auto p2mp_pw_enabled = port.flags.test(BridgePortContext::p2mp_pw_enabled);
    note(out, "p2mp_pw_enabled", p2mp_pw_enabled);
    if (p2mp_pw_enabled) {
        forwarding.item("P2MP PW enabled");
        forwarding.item("P2MP Role: %s", p2mp_role_name(port.p2mp_role));
    }
}

constexpr DetailView bridge_port_detail{end_of<Received<BridgePortContext>>, print_bridge_port};

} // namespace l2fib
