// Attachment circuits: one of a bridge domain, seen from both sides, and one of a local switch.
#include "examples/captures.h"
#include "examples/show_data_builder.h"
#include "hw/plain_ac.h"
#include "hw/vpls_ac.h"
#include "rp/names.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

constexpr std::uint16_t np_count = 3;
constexpr std::uint32_t all_nps = 0xffffffff;
constexpr std::uint32_t vpls_xid = 0x00340003;
constexpr std::uint32_t vpls_ifhandle = 0x0a000440;
constexpr std::uint32_t bridge_domain = 12;

static AcShowData vpls_ac()
{
    AcShowData data{};
    set(data.np_count.count, np_count);
    AcContext &ac = data.context.to_compose();
    set(ac.service, service_vpls);
    set(ac.state, state_bound);
    set(ac.ifhandle, vpls_ifhandle);
    set(ac.sfp, 0x11);
    set(ac.xid, vpls_xid);
    set(ac.bridge_id, bridge_domain);
    set(ac.mac_limit, 4000);
    set_flags(ac.flags, {AcContext::is_lag, AcContext::dhcp_snoop, AcContext::igmp_snoop,
                         AcContext::storm_control_bcast, AcContext::storm_control_ucast});
    set(ac.requested_np, all_nps);
    return data;
}

static Bport bport(std::int32_t port, bool is_virtual)
{
    Bport bport{};
    set(bport.key.is_virtual, is_virtual ? 1 : 0);
    set(bport.key.bridge_id, bridge_domain);
    set(bport.key.port_id, port);
    set_flags(bport.entry.flags, {31});
    set(bport.entry.xid, vpls_xid);
    return bport;
}

static XidEntry vpls_xid_entry()
{
    XidEntry entry{};
    set(entry.vpn_id, 0x2a);
    set(entry.virtual_port, 0x1804);
    set(entry.next_hop_index, 0x31);
    set_flags(entry.translation, {XidEntry::ingress_translation});
    set_flags(entry.flags,
              {29, XidEntry::vpls, XidEntry::broadcast_storm_control, XidEntry::unknown_unicast_storm_control});
    set(entry.type, XidEntry::type_bundle);
    set(entry.learn_count_limit, 4000);
    set(entry.learn_key, 7);
    set(entry.xc_id, 0x3);
    set(entry.bridge_domain, bridge_domain);
    set(entry.main_ifhandle, 0x0a000400);
    set(entry.efp_egress_hash, 1);
    set(entry.uidb_index, 0x0c);
    set(entry.lag_id, 64);
    return entry;
}

static UidbEntry uidb_entry()
{
    UidbEntry entry{};
    set(entry.statistics_pointer, 0x530a20);
    set(entry.ifhandle, vpls_ifhandle);
    set(entry.destination_xid, vpls_xid);
    set(entry.bridge_domain, bridge_domain);
    set(entry.uidb_index, 0x0c);
    set(entry.vlan1, 100);
    set(entry.vlan1_ethertype, 0x8100);
    set(entry.pre_vlan1, 200);
    set(entry.pre_vlan1_ethertype, 0x88a8);
    set(entry.num_vlans, 1);
    set(entry.source_port, 6);
    set(entry.search_vlan_vector, 1);
    set(entry.qos, 21);
    constexpr UidbFlag bundle{105, 0x20};
    constexpr UidbFlag l2{111, 0x04};
    constexpr UidbFlag pop_1_tag{112, 0x10};
    constexpr UidbFlag qos{114, 0x10};
    constexpr UidbFlag status{116, 0x40};
    constexpr UidbFlag dhcp_snoop{106, 0x40};
    constexpr UidbFlag igmp_snoop{107, 0x01};
    set_flags(entry, {bundle, l2, pop_1_tag, qos, status, dhcp_snoop, igmp_snoop, UidbEntry::bd_lookup,
                      UidbEntry::pre_tag_1_valid});
    return entry;
}

/// The last NP is not flooded to, and has no bridge ports.
static VplsNpRecord np_record(unsigned np)
{
    VplsNpRecord record{};
    record.xid = as_sent(vpls_xid_entry());
    if (np < np_count - 1U) {
        set(record.bports_present, 1);
        record.bports[0] = as_sent(bport(3, false));
        record.bports[1] = as_sent(bport(4, true));
    }
    record.uidb = as_sent(uidb_entry());
    return record;
}

static StormControlProfile storm_control_profile()
{
    StormControlProfile profile{};
    set(profile.rate[0], 640);
    set(profile.profile_id[0], 5);
    set(profile.rate[2], 1024);
    set(profile.profile_id[2], 6);
    return profile;
}

static BridgePortContext bridge_port()
{
    constexpr std::uint32_t configured = 3;
    constexpr std::uint32_t disabled = 1;
    BridgePortContext port{};
    set(port.bridge_id, bridge_domain);
    set(port.mac_limit, 4000);
    set(port.num_static_macs, 2);
    set(port.slot_mask[0], 0x05);
    set(port.np_flood_mask, 0x0003);
    set_flags(port.features.features,
              {FeatureFlags::storm_control_broadcast, FeatureFlags::storm_control_unknown_unicast});
    set(port.broadcast_rate, 640);
    set(port.unknown_unicast_rate, 1024);
    set(port.storm_control_unit, BridgePortContext::storm_control_in_kbps);
    for (unsigned np = 0; np < np_count; ++np) {
        const std::uint32_t statuses[] = {configured, disabled, configured};
        for (unsigned type = 0; type < storm_traffic_types; ++type) {
            StormControlTraffic &traffic = port.storm_control[np].to_compose().traffic[type];
            set_stored(traffic.profile, 0x21 + type);
            set_stored(traffic.token_bucket_id, 0x4100 + 0x10 * np + type);
            set_stored(traffic.status, statuses[type]);
        }
    }
    return port;
}

std::vector<std::uint8_t> make_vpls_ac_ingress()
{
    VplsIngressBlock block{};
    set(block.np_count.to_compose().count, np_count);
    block.port = as_sent(bridge_port());
    ShowDataBuilder builder;
    builder.add(vpls_ac()).add_zeros(np_count * np_entry_size).add(block);
    for (unsigned np = 0; np < np_count; ++np) {
        builder.add(VplsIngressNpRecord{np_record(np), as_sent(storm_control_profile())});
    }
    return builder.add(VplsIngressTrailer{}).bytes();
}

std::vector<std::uint8_t> make_vpls_ac_egress()
{
    VplsEgressBlock block{};
    set(block.np_count.to_compose().count, np_count);
    ShowDataBuilder builder;
    builder.add(vpls_ac()).add_zeros(np_count * np_entry_size).add(block);
    for (unsigned np = 0; np < np_count; ++np) {
        builder.add(np_record(np));
    }
    return builder.bytes();
}

/// For the private view, which shows the bridge port in place of what the NPs hold.
std::vector<std::uint8_t> make_vpls_ac_private()
{
    return ShowDataBuilder{}.add(vpls_ac()).add_zeros(np_count * np_entry_size).add(bridge_port()).bytes();
}

std::vector<std::uint8_t> make_local_switch_ac()
{
    AcShowData data{};
    set(data.np_count.count, 2);
    AcContext &ac = data.context.to_compose();
    set(ac.service, service_local_switch);
    set(ac.state, state_bound);
    set(ac.xid, 0x00340007);
    set_flags(ac.flags, {AcContext::remote_is_simple_ac, AcContext::mac_learn_disable});
    set(ac.requested_np, all_nps);

    XidEntry entry{};
    set(entry.type, XidEntry::type_ac);
    set(entry.remote_type, XidEntry::type_ac);
    set(entry.uidb_index, 0x12);
    set(entry.next_hop_index, 0x44);

    ShowDataBuilder builder;
    builder.add(data).add_zeros(2 * np_entry_size).add(PlainAcBlock{}).add(entry).add(entry);
    return builder.bytes();
}

} // namespace l2fib
