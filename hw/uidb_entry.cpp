#include "hw/uidb_entry.h"

#include "common/failure.h"
#include "common/formatters.h"
#include "common/list.h"

#include <array>
#include <bit>
#include <cstring>

namespace l2fib
{

/// When a direction lists a flag: always, only when the group selector is set, only when it is clear, or never.
enum Group : std::uint8_t { base, set, clear, never };

struct UidbFlagItem {
    UidbFlag flag;
    Literal text;
    Group ingress;
    Group egress;
    Literal text_when_clear = nullptr; // printed instead when the bit is clear
};

// In print order within each group. Two flags share the text "VPWS Remote Rack".
static constexpr UidbFlagItem uidb_flags[] = {
    {{105, 0x80}, "ACL", base, base},
    {UidbEntry::bd_lookup, "BD Lookup", clear, never},
    {{105, 0x20}, "Bundle Interface", base, base},
    {UidbEntry::cfm, "CFM", base, base},
    {{105, 0x08}, "CFM MIP", base, base},
    {{105, 0x04}, "COPP Bad Actor", set, never},
    {{105, 0x02}, "DAI", base, never},
    {{105, 0x01}, "DAI Notification", base, never},
    {{106, 0x80}, "Dest MAC validation", base, never},
    {{106, 0x40}, "DHCP Snoop", base, never},
    {{106, 0x20}, "DHCP Snoop Trusted", base, base},
    {{106, 0x10}, "Done", never, clear},
    {{106, 0x08}, "Packet Drop", clear, never},
    {{106, 0x04}, "EDPL", set, never},
    {{106, 0x02}, "EFR Filter Bypass", base, never},
    {{106, 0x01}, "EFP Filtering", clear, set},
    {{107, 0x80}, "Ext Required", set, set},
    {{107, 0x40}, "Cluster Inter-Rack", set, never},
    {{107, 0x20}, "Filter dot1ad", base, clear},
    {{107, 0x10}, "Filter dot1q", base, clear},
    {{107, 0x08}, "Global/virtual Interface", set, set},
    {{107, 0x04}, "BNG QoS Agg Policy", never, set},
    {{107, 0x02}, "Satellite Over ICL Bundle", never, set},
    {{107, 0x01}, "IGMP Snoop", base, never},
    {{108, 0x80}, "QOS Inherit Parent", base, clear},
    {{108, 0x40}, "IP Addr Validation", base, never},
    {UidbEntry::ipiw_mode, "IPIW Mode", base, never},
    {{108, 0x10}, "IPIW Punt", base, never},
    {{108, 0x08}, "IPSG", base, never},
    {{108, 0x04}, "IPSG Notification", base, never},
    {{108, 0x02}, "IPV4 ACL Count", never, clear},
    {{108, 0x01}, "IPV4 ACL", base, base},
    {{109, 0x80}, "IPV4 ICMP Punt", never, clear},
    {{109, 0x40}, "IPV4 Mcast ACL Boundary", never, clear},
    {{109, 0x20}, "IPV4 Netflow", never, clear},
    {{109, 0x10}, "IPV6 ACL Count", never, clear},
    {{109, 0x08}, "IPV6 ACL", base, base},
    {{109, 0x04}, "IPV6 ICMP Punt", never, clear},
    {{109, 0x02}, "IPV6 Mcast ACL Boundary", never, clear},
    {{109, 0x01}, "IPV6 Netflow", never, clear},
    {{110, 0x80}, "Netflow", never, clear},
    {{110, 0x40}, "L2PT", base, set},
    {{110, 0x20}, "L2PT Reverse Mode", base, set},
    {UidbEntry::bng_l2tp_mode, "BNG L2TP Mode", never, base},
    {{110, 0x08}, "L2TPv3 over IPv6", set, never},
    {{110, 0x04}, "LB Hash Select", clear, never},
    {{110, 0x02}, "LMM Agg Mode", set, set},
    {{110, 0x01}, "LMM", set, set},
    {{111, 0x80}, "LMM Rep Counter", set, set},
    {{111, 0x40}, "Match Source MAC", clear, never},
    {{111, 0x10}, "MLD Snoop", set, never},
    {{111, 0x08}, "MLD Snoop Router Guard", set, never},
    {{111, 0x04}, "L2", base, base, "L3"},
    {{111, 0x02}, "More Features", never, set},
    {{111, 0x01}, "PBB Port", base, never},
    {{112, 0x10}, "Pop 1 Tag", base, base},
    {{112, 0x08}, "Pop 2 Tags", base, base},
    {{112, 0x04}, "PPP Ctrl COS", never, base},
    {UidbEntry::pre_tag_1_valid, "Pre-Tag 1 Valid", clear, set},
    {UidbEntry::pre_tag_2_valid, "Pre-Tag 2 Valid", clear, set},
    {{113, 0x80}, "Prov Port", base, never},
    {{113, 0x40}, "PTP", set, set},
    {UidbEntry::punt_cdp_main, "Punt CDP Main", set, never},
    {{113, 0x10}, "Punt MVRP", base, never},
    {{113, 0x08}, "Punt PVST AG", base, never},
    {{113, 0x04}, "Punt STP 1ad", base, base},
    {UidbEntry::punt_stp_1ad_main, "Punt STP 1ad Main", set, never},
    {{113, 0x01}, "Punt STP 1d", base, base},
    {UidbEntry::punt_stp_1d_main, "Punt STP 1d Main", set, never},
    {{114, 0x40}, "Push 1 Tag", base, base},
    {{114, 0x20}, "Push 2 Tags", base, base},
    {{114, 0x10}, "QOS", base, base},
    {{114, 0x08}, "QOS Enable Control", never, clear},
    {{114, 0x04}, "R APS", base, base},
    {{114, 0x02}, "Racetrack Eligible", set, never},
    {{114, 0x01}, "Reflect DF", never, clear},
    {{115, 0x80}, "Reflect TOS", never, clear},
    {{115, 0x40}, "VPWS Remote Rack", base, never},
    {{115, 0x20}, "IGMP Snoop Router Guard", base, never},
    {{115, 0x08}, "Set DF", never, clear},
    {{115, 0x04}, "Set TOS", never, clear},
    {{115, 0x02}, "SPAN ACL", base, base},
    {{115, 0x01}, "SPAN", base, base},
    {{116, 0x80}, "Source MAC validation", base, never},
    {{116, 0x40}, "Status", base, base},
    {{116, 0x20}, "STP Blocked", base, base},
    {{116, 0x10}, "STP Learn Only", base, never},
    {{116, 0x08}, "BNG Sub LI", set, set},
    {{116, 0x04}, "Translate 1st Tag", base, base},
    {{116, 0x02}, "Translate 2nd Tag", base, base},
    {{116, 0x01}, "Translate Tag", clear, never},
    {{117, 0x40}, "VLAN Based Learning", clear, never},
    {{117, 0x20}, "VLAN Exact Match", set, set},
    {{117, 0x10}, "VLAN Lookup", clear, never},
    {{117, 0x08}, "VLAN Ops", set, set},
    {{117, 0x04}, "VLAN Tag 1", never, clear},
    {{117, 0x02}, "VLAN Tag 2", never, clear},
    {{117, 0x01}, "VPLS", set, never},
    {UidbEntry::vpws_dest_lag, "VPWS Dest Lag", clear, never},
    {UidbEntry::vpws_dest_pw, "VPWS Dest PW", clear, never},
    {UidbEntry::bng_vpws_pw_l2tp, "BNG VPWS PW L2TP", base, never},
    {{118, 0x10}, "VPWS Remote Rack", base, never},
};

/// Whether the flags are in the order of their bits, each named once and with a text.
static consteval bool is_well_formed()
{
    unsigned last = 0;
    for (const UidbFlagItem &item : uidb_flags) {
        const unsigned place = item.flag.byte << 8 | (0xffU - item.flag.mask);
        if (place <= last || std::popcount(item.flag.mask) != 1 || item.flag.byte < offsetof(UidbEntry, flags) ||
            item.flag.byte >= offsetof(UidbEntry, unread_119) || item.text.size == 0) {
            return false;
        }
        last = place;
    }
    return true;
}
static_assert(is_well_formed());

constexpr std::size_t flag_bytes = std::tuple_size_v<decltype(UidbEntry::flags)>;

/// Flags as the bits of two numbers, from the top bit down: so they are in print order.
using UidbFlagSet = std::array<std::uint64_t, 2>;
static_assert(flag_bytes > sizeof(std::uint64_t) && flag_bytes <= sizeof(UidbFlagSet));

constexpr unsigned bits_of_half = 64;

/// The place of a flag in a set, from the top.
static constexpr unsigned place_of(UidbFlag flag)
{
    const auto byte = static_cast<unsigned>(flag.byte - offsetof(UidbEntry, flags));
    return 8 * byte + static_cast<unsigned>(std::countl_zero(flag.mask));
}

static constexpr std::uint64_t bit_of(unsigned place)
{
    return std::uint64_t{1} << (bits_of_half - 1 - place % bits_of_half);
}

template <class Wanted>
static consteval UidbFlagSet flags_that(const Wanted &are_wanted)
{
    UidbFlagSet flags{};
    for (const UidbFlagItem &item : uidb_flags) {
        if (are_wanted(item)) {
            flags[place_of(item.flag) / bits_of_half] |= bit_of(place_of(item.flag));
        }
    }
    return flags;
}

/// The flags that a direction lists in one group.
template <Group UidbFlagItem::*direction, Group group>
static constexpr UidbFlagSet listed_flags = flags_that([](const UidbFlagItem &item) {
    return item.*direction == group;
});

static constexpr UidbFlagSet flags_with_text_when_clear =
    flags_that([](const UidbFlagItem &item) { return item.text_when_clear.size != 0; });

/// Which flag is at a place of a set.
static constexpr auto item_at = [] {
    std::array<std::uint8_t, bits_of_half * std::tuple_size_v<UidbFlagSet>> items{};
    std::uint8_t next = 0;
    for (const UidbFlagItem &item : uidb_flags) {
        items[place_of(item.flag)] = next++;
    }
    return items;
}();

static bool is_set(const UidbEntry &entry, UidbFlag flag)
{
    return (entry.flags[flag.byte - offsetof(UidbEntry, flags)] & flag.mask) != 0;
}

/// The flags that are set in an entry.
static UidbFlagSet flags_of(const UidbEntry &entry)
{
    Bytes<sizeof(UidbFlagSet)> bytes{};
    std::memcpy(bytes.data(), entry.flags.data(), flag_bytes);
    auto flags = std::bit_cast<UidbFlagSet>(bytes);
    for (std::uint64_t &half : flags) {
        half = from_big_endian(half);
    }
    return flags;
}

static void print_flag_line(Output &out, std::uint32_t level, bool ingress, const UidbEntry &entry)
{
    List line{out, level, "Flags"};
    const Flags all(out, entry.flags);
    const UidbFlagSet flags = flags_of(entry);
    const auto list = [&](const UidbFlagSet &listed) {
        for (unsigned half = 0; half < listed.size(); ++half) {
            std::uint64_t left = listed[half] & (flags[half] | flags_with_text_when_clear[half]);
            while (left != 0) {
                const auto place = static_cast<unsigned>(std::countl_zero(left));
                const UidbFlagItem &item = uidb_flags[item_at[half * bits_of_half + place]];
                const Literal &text = (flags[half] & bit_of(place)) != 0 ? item.text : item.text_when_clear;
                line.item("%s", text);
                all.add(text);
                left &= ~bit_of(place);
            }
        }
    };
    const bool selected = is_set(entry, UidbEntry::group_selector);
    if (ingress) {
        list(listed_flags<&UidbFlagItem::ingress, base>);
        list(selected ? listed_flags<&UidbFlagItem::ingress, set> : listed_flags<&UidbFlagItem::ingress, clear>);
    } else {
        list(listed_flags<&UidbFlagItem::egress, base>);
        list(selected ? listed_flags<&UidbFlagItem::egress, set> : listed_flags<&UidbFlagItem::egress, clear>);
    }
}

static void print_vlan_line(Output &out, std::uint32_t level, const UidbEntry &entry)
{
    List line{out, level};
    line.item("VLAN1: %d", entry.vlan1);
    line.item("VLAN1 etype: 0x%04x", entry.vlan1_ethertype);
    line.item("VLAN2: %d", entry.vlan2);
    line.item("VLAN2 etype: 0x%04x", entry.vlan2_ethertype);
    // The ethertypes of the pre-VLANs print in decimal.
    if (is_set(entry, UidbEntry::pre_tag_1_valid)) {
        line.item("Pre-VLAN1: %d", entry.pre_vlan1);
        line.item("Pre-VLAN1 etype: %d", entry.pre_vlan1_ethertype);
    }
    if (is_set(entry, UidbEntry::pre_tag_2_valid)) {
        line.item("Pre-VLAN2: %d", entry.pre_vlan2);
        line.item("Pre-VLAN2 etype: %d", entry.pre_vlan2_ethertype);
    }
}

static void print_acl_line(Output &out, std::uint32_t level, const UidbEntry &entry)
{
    List line{out, level};
    line.item("L2 ACL Format: %d", entry.l2_acl_format);
    line.item("L2 ACL ID: %d", entry.l2_acl);
    line.item("IPV4 ACL ID: %d", entry.ipv4_acl);
    line.item("IPV6 ACL ID: %d", entry.ipv6_acl);
}

static void print_destination_line(Output &out, std::uint32_t level, const UidbEntry &entry)
{
    List line{out, level};
    if (is_set(entry, UidbEntry::bd_lookup)) {
        line.item("VPLS XID: 0x%08x", entry.destination_xid);
        line.item("SHG: %s", shg_text(entry.shg));
        line.item("Bridge Domain: %d", called("bridge_id", entry.bridge_domain));
    } else if (is_set(entry, UidbEntry::vpws_dest_pw)) {
        line.item("Dest XID: 0x%08x", entry.destination_xid);
    } else if (is_set(entry, UidbEntry::vpws_dest_lag)) {
        line.item("LAG dest XID: 0x%08x", entry.destination_xid);
        line.item("LAG ptr: 0x%04x", entry.lag_pointer);
        line.item("LB Hash: 0x%02x", entry.load_balance_hash);
    } else if (is_set(entry, UidbEntry::bng_vpws_pw_l2tp)) {
        line.item("L2TP Session ID: 0x%08x", entry.l2tp_session);
    } else {
        line.item("Local Switch dest XID: 0x%08x", entry.destination_xid);
    }
}

// Some labels differ between the directions by a capital: "Stats Ptr" and "Stats ptr".

static void print_ingress_lines(Output &out, std::uint32_t level, const UidbEntry &entry)
{
    List statistics{out, level};
    statistics.item("Stats Ptr: 0x%06x", entry.statistics_pointer);
    statistics.item("uIDB index: 0x%04x", entry.uidb_index);
    statistics.item("Wire Exp Tag: %d", entry.wire_exp_tag);

    List bvi{out, level};
    bvi.item("BVI Bridge Domain: %d", called("bvi_bridge_id", entry.bvi_bridge_domain));
    bvi.item("BVI Source XID: 0x%08x", entry.bvi_source_xid);

    print_vlan_line(out, level, entry);
    print_acl_line(out, level, entry);

    List qos{out, level};
    qos.item("QOS ID: %d", entry.qos);
    qos.item("QOS Format ID: %d", entry.qos_format);

    if (is_set(entry, UidbEntry::cfm)) {
        List threshold{out, level};
        threshold.item("CFM threshold: %d", entry.cfm_threshold);
    }

    print_destination_line(out, level, entry);

    List interface {
        out, level
    };
    interface.item("UIDB IF Handle: 0x%08x", entry.ifhandle);
    interface.item_if(is_set(entry, UidbEntry::punt_cdp_main) || is_set(entry, UidbEntry::punt_stp_1ad_main) ||
                          is_set(entry, UidbEntry::punt_stp_1d_main),
                      "MSTP Default IF Handle: 0x%08x", entry.mstp_default_ifhandle);
    interface.item("Source Port: %d", entry.source_port);
    interface.item("Num VLANs: %d", entry.num_vlans);
}

static void print_egress_lines(Output &out, std::uint32_t level, const UidbEntry &entry)
{
    List statistics{out, level};
    statistics.item_if(is_set(entry, UidbEntry::group_selector), "uIDB index: 0x%04x", entry.uidb_index);
    statistics.item("Stats ptr: 0x%06x", entry.statistics_pointer);

    List shg{out, level};
    shg.item("VPLS SHG: %s", shg_text(entry.shg));

    if (is_set(entry, UidbEntry::cfm)) {
        List threshold{out, level};
        threshold.item("CFM Threshold: %d", entry.cfm_threshold);
    }

    print_acl_line(out, level, entry);
    print_vlan_line(out, level, entry);

    List interface {
        out, level
    };
    interface.item("UIDB IF Handle: 0x%08x", entry.ifhandle);
    interface.item("Search VLAN Vector: %d", entry.search_vlan_vector);

    List qos{out, level};
    qos.item("QOS ID: %d", entry.qos);
    qos.item("QOS format: %d", entry.qos_format);

    if (is_set(entry, UidbEntry::ipiw_mode)) {
        out.line(level, "IP IW MAC: %s", from_field(mac_of(entry.mac), entry.mac, "ip_iw_mac"));
    }
    if (is_set(entry, UidbEntry::bng_l2tp_mode)) {
        List tunnel{out, level};
        tunnel.item("LNS Session ID: 0x%04x", entry.lns_session);
        tunnel.item("LNS Tunnel ID: 0x%04x", entry.lns_tunnel);
        tunnel.item("PPPoE Session ID: 0x%04x MAC: %s", entry.pppoe_session,
                    from_field(mac_of(entry.mac), entry.mac, "pppoe_mac"));
        tunnel.item("PPP COS: 0x%02x", entry.ppp_class_of_service);
        tunnel.item("TOS: 0x%02x", entry.tos);
    }
}

static void print_uidb_entry(Output &out, std::uint32_t level, bool ingress, const UidbEntry &entry)
{
    const Section section(out, "uidb");
    out.line(level, "%s uIDB: ", ingress ? "Ingress" : "Egress");
    print_flag_line(out, level + 1, ingress, entry);
    if (ingress) {
        print_ingress_lines(out, level + 1, entry);
    } else {
        print_egress_lines(out, level + 1, entry);
    }
}

void show_uidb_entry(Output &out, std::uint32_t level, std::uint32_t direction, std::uint32_t service,
                     Received<UidbEntry> &entry)
{
    const bool ingress = direction == L2FIB_INGRESS;
    const std::uint32_t status = entry.to_host_only<&UidbEntry::retrieval_status>();
    if (status == 0) {
        print_uidb_entry(out, level, ingress, entry.to_host()); // 0 may be converted twice
    } else if (ingress || service != 0) {
        const Failure failure(out);
        out.line(level, "ERROR: Failed to retrieve UIDB: %s", status_text(status));
    }
}

} // namespace l2fib
