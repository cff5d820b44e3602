#include "hw/xid_entry.h"

#include "common/formatters.h"
#include "common/list.h"
#include "common/names.h"

namespace l2fib
{

static Literal xid_type_name(std::uint32_t type)
{
    static constexpr Literal names[] = {
        "Unknown",   "AC",  "Bundle",  "Pseudowire (no control word)", "Pseudowire (with control word)",
        "Interflex", "PBB", "Unknown", "PW-HE (no control word)",      "PW-HE (with control word)",
        "VNI",
    };
    return name_of(names, type, "Unknown");
}

// In the order of their bits, except for "Flow Label imposition" and "MSTI enabled".
static constexpr FlagTable xid_flags{{
    {31, "Unknown unicast flood block"},
    {30, "Multicast flood block"},
    {29, "Learn enable"},
    {XidEntry::pw_vc_type_4, "Type 4", "Type 5"},
    {27, "MAC limit port level"},
    {26, "Virtual XID"},
    {25, "Local replication"},
    {24, "Unbound"},
    {23, "Learn limit no learn"},
    {22, "Learn limit drop"},
    {XidEntry::load_balance_flow_based, "Load balance flow based"},
    {10, "Flow Label imposition"},
    {XidEntry::broadcast_storm_control, "Broadcast storm control"},
    {XidEntry::multicast_storm_control, "Multicast storm control"},
    {XidEntry::unknown_unicast_storm_control, "Unknown unicast storm control"},
    {XidEntry::vpls, "VPLS"},
    {16, "PW DHCP snoop trusted"},
    {15, "PW DHCP snoop"},
    {14, "MAC security"},
    {11, "MAC Flush Request"},
    {8, "EVPN flood block"},
    {4, "Ingress block"},
    {3, "Egress block"},
    {2, "Learn only"},
    {5, "MSTI enabled"},
}};

// The storm-control bits are printed once more, on a line of their own.
static constexpr FlagTable storm_control_flags{{
    {XidEntry::broadcast_storm_control, "Broadcast"},
    {XidEntry::multicast_storm_control, "Multicast"},
    {XidEntry::unknown_unicast_storm_control, "Unknown Unicast"},
}};

static void print_ac_lines(Output &out, std::uint32_t level, const XidEntry &entry)
{
    List uidb{out, level};
    uidb.item("uIDB Index: 0x%04x", entry.uidb_index);

    List vpn{out, level};
    vpn.item("VPN Id: 0x%x ", entry.vpn_id);
    vpn.item("Sw NH Index: 0x%x ", entry.next_hop_index);

    List ports{out, level};
    ports.item("SVP Index: 0x%x ", entry.virtual_port);
    ports.item("DVP Index: 0x%x ", entry.virtual_port);

    List translation{out, level};
    translation.item("Ing Xlate: %d ", entry.translation.test(XidEntry::ingress_translation));
    translation.item("Egr Xlate: %d ", entry.translation.test(XidEntry::egress_translation));
    translation.item("Is_remote_pw: %d ", entry.translation.test(XidEntry::remote_pw));
}

static void print_bundle_line(Output &out, std::uint32_t level, const XidEntry &entry)
{
    List line{out, level};
    line.item("uIDB Index: 0x%04x", entry.uidb_index);
    line.item("LAG ID: %d", entry.lag_id);
    if (entry.flags.test(XidEntry::load_balance_flow_based)) {
        line.item("EFP egress hash: %s", "Flow Based");
    } else {
        line.item("EFP egress hash: %s, value = %d", "XID value based", entry.efp_egress_hash + 1);
    }
}

static void print_pw_lines(Output &out, std::uint32_t level, const XidEntry &entry)
{
    out.line(level);

    List ports{out, level};
    ports.item("VPN Id: 0x%x ", entry.vpn_id);
    ports.item("SVP Index: 0x%x ", entry.virtual_port);
    ports.item("DVP Index: 0x%x ", entry.virtual_port);

    List labels{out, level};
    labels.item("h/w disp_vc_label: %d ", entry.disposition_label);
    labels.item("h/w imp_vc_label: %d ", entry.imposition_label);
    labels.item("control_word_enabled: %d ", entry.type == XidEntry::type_pw_control_word);
    labels.item("nh_index: %d ", entry.nh_index);
    labels.item("bcm_tunnel_if: %d ", entry.tunnel_interface);
}

static void print_vpls_line(Output &out, std::uint32_t level, const XidEntry &entry)
{
    List line{out, level};
    line.item("Bridge Domain ID: %u", entry.bridge_domain);
    line.item_if(entry.learn_count_limit != 0, "Learn Count Limit: %d", entry.learn_count_limit);
    line.item_if(entry.learn_count_pointer != 0, "Learn Count Pointer: 0x%06x", entry.learn_count_pointer);
    line.item_if(entry.learn_key != 0, "Learn Key: %u", entry.learn_key);
    line.item_if(entry.xc_id != 0, "XC ID: 0x%06x", entry.xc_id);
    line.item_if(entry.msti != 0, "msti: %u", entry.msti);
    line.item_if(entry.main_ifhandle != 0, "Main interface IF Handle: 0x%08x", entry.main_ifhandle);
}

static void print_storm_control_line(Output &out, std::uint32_t level, const XidEntry &entry)
{
    List line{out, level, "Storm Control enabled for"};
    line.flags(storm_control_flags, entry.flags);
}

void print_xid_entry(Output &out, std::uint32_t level, std::uint32_t xid, const XidEntry &entry)
{
    List header{out, level};
    header.item("Xconnect ID: 0x%08x", xid);

    const std::uint32_t body = level + 1;
    List type{out, body};
    type.item("Type: %s", xid_type_name(entry.type));
    type.item_if(entry.remote_type != 0, "Remote type: %s", xid_type_name(entry.remote_type));

    const bool is_pw = entry.type == XidEntry::type_pw || entry.type == XidEntry::type_pw_control_word;
    print_flags(out, body, "Flags", xid_flags, entry.flags, is_pw ? all_flags : all_flags_but(XidEntry::pw_vc_type_4));

    if (entry.type == XidEntry::type_ac) {
        print_ac_lines(out, body, entry);
    } else if (entry.type == XidEntry::type_bundle) {
        print_bundle_line(out, body, entry);
    } else if (is_pw) {
        print_pw_lines(out, body, entry);
    }
    if (entry.flags.test(XidEntry::vpls)) {
        print_vpls_line(out, body, entry);
    }
    if (entry.flags.test(XidEntry::broadcast_storm_control) || entry.flags.test(XidEntry::multicast_storm_control) ||
        entry.flags.test(XidEntry::unknown_unicast_storm_control)) {
        print_storm_control_line(out, body, entry);
    }
    List shg{out, body};
    shg.item("Split Horizon Group: %s", shg_text(entry.shg));
}

} // namespace l2fib
