// A bridge domain with a BVI and storm control, seen from both sides; one of its ports; two of its MAC addresses.
#include "examples/captures.h"
#include "examples/show_data_builder.h"
#include "hw/bridge.h"
#include "hw/bridge_domain.h"
#include "hw/bridge_member.h"
#include "hw/mac.h"
#include "hw/storm_control.h"
#include "rp/bridge_context.h"
#include "rp/bridge_mac_context.h"
#include "rp/bridge_port_context.h"
#include "rp/names.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

constexpr std::uint16_t np_count = 3;
constexpr std::uint32_t bridge_domain = 12;
constexpr std::uint16_t members_of_np[np_count] = {2, 0, 1};

static BridgeShowData bridge_show_data()
{
    BridgeShowData data{};
    set(data.np_count.count, np_count);
    BridgeContext &bridge = data.context.to_compose();
    set(bridge.state, state_bound);
    set(bridge.bridge_id, bridge_domain);
    set(bridge.mac_limit, 4000);
    set(bridge.current_mac_limit, 4000);
    set(bridge.static_macs, 2);
    set(bridge.mtu, 1500);
    set(bridge.last_notification, std::uint64_t{11} * 86400 * 1'000'000'000);
    set(bridge.mac_limit_action, 1);
    set_flags(bridge.features.features, {FeatureFlags::storm_control_broadcast, FeatureFlags::storm_control_multicast});
    set_flags(bridge.features.more, {FeatureFlags::bvi_present});
    set(bridge.bvi_ifhandle, 0x080000c0);
    set(bridge.bvi_xid, 0x00ff0001);
    set_flags(bridge.flags, {BridgeContext::evpn_statistics_pointer, BridgeContext::next_hop_has_bvi});
    set(data.hal.flags, 1U << BridgeHalContext::bvi_configured);
    set(data.hal.learn_key, 7);
    return data;
}

static BridgeHalNpEntry hal_np_entry(unsigned np)
{
    BridgeHalNpEntry entry{};
    set(entry.mac_limit_counter_index, 0x2010 + np);
    set(entry.shg_members[0], members_of_np[np]);
    set(entry.irl_shg0_bound_members, 1);
    return entry;
}

static BridgeFeatureBlock1 feature_block_1()
{
    BridgeFeatureBlock1 block{};
    set(block.pw_over_bvi[1], 1);
    return block;
}

static BridgeFeatureBlock1Np feature_block_1_np(unsigned np)
{
    BridgeFeatureBlock1Np entry{};
    set(entry.evpn_statistics_pointer, 0x530b00 + np);
    set(entry.bvi_tcam_index, 0x40 + np);
    set(entry.pw_over_bvi_members[1], 1);
    return entry;
}

static StormControlState storm_control_state()
{
    constexpr std::uint32_t configured = 3;
    StormControlState state{};
    for (const unsigned type : {0U, 1U}) {
        set_field(state.traffic[type].profile, StormControlTraffic::profile_index, 0x21 + type);
        set(state.traffic[type].token_bucket_id, 0x4200 + type);
        set(state.traffic[type].status, configured);
    }
    return state;
}

static StormControlProfile storm_control_profile()
{
    StormControlProfile profile{};
    set(profile.rate[0], 1000);
    set(profile.rate[1], 2000);
    set(profile.profile_id[0], 5);
    set(profile.profile_id[1], 6);
    return profile;
}

static BridgeDomainRecord bridge_domain_record(unsigned np)
{
    BridgeDomainRecord domain{};
    set_flags(domain.flags, {BridgeDomainRecord::evpn_bd, 22, BridgeDomainRecord::bvi, 4});
    set(domain.learn_key, 7);
    set(domain.members, members_of_np[np]);
    for (unsigned group = 0; group < 3; ++group) {
        set(domain.fgid[group], 0x1000 + group);
    }
    set(domain.mgid_index, 0x51);
    set(domain.half_age, 1);
    set(domain.learn_counter, 0x2010 + np);
    set(domain.evpn_counter, 0x77 << 8);
    set(domain.bvi_tcam_index, (0x40 + np) << 8);
    return domain;
}

static BridgeMemberRecord local_member()
{
    BridgeMemberRecord member{};
    set_flags(member.flags, {31});
    set(member.xid, 0x00340003);
    return member;
}

static BridgeMemberRecord evpn_member()
{
    BridgeMemberRecord member{};
    set_flags(member.flags, {31, BridgeMemberRecord::evpn_ole, BridgeMemberRecord::evpn_label_hash});
    set(member.label, 24100);
    set(member.ldi, 0x1f);
    set(member.lag_hash, 0x3);
    set(member.nr_ldi_hash, 0x4);
    set(member.r_ldi_hash, 0x15);
    return member;
}

/// Both copies of a member.
static void add_member(ShowDataBuilder &builder, const BridgeMemberRecord &member)
{
    builder.add(member).add(member);
}

static std::vector<std::uint8_t> make_bridge(std::uint32_t direction)
{
    ShowDataBuilder builder;
    builder.add(bridge_show_data());
    for (unsigned np = 0; np < np_count; ++np) {
        builder.add(hal_np_entry(np));
    }
    builder.add(feature_block_1());
    for (unsigned np = 0; np < np_count; ++np) {
        builder.add(feature_block_1_np(np));
    }
    BridgeMemberCounts counts{};
    set(counts.members, members_of_np[0] + members_of_np[1] + members_of_np[2]);
    set(counts.pw_over_bvi_members, 1);
    builder.add(counts);
    if (direction == L2FIB_INGRESS) {
        for (unsigned np = 0; np < np_count; ++np) {
            builder.add(storm_control_state());
        }
        for (unsigned np = 0; np < np_count; ++np) {
            builder.add(storm_control_profile());
        }
    }
    for (unsigned np = 0; np < np_count; ++np) {
        builder.add(bridge_domain_record(np));
        for (unsigned member = 0; member < members_of_np[np]; ++member) {
            add_member(builder, member == 0 ? local_member() : evpn_member());
        }
    }
    BridgeMemberRecord pw{};
    set(pw.xid, 0x00380005);
    add_member(builder, pw);
    return builder.bytes();
}

std::vector<std::uint8_t> make_bridge_ingress()
{
    return make_bridge(L2FIB_INGRESS);
}

std::vector<std::uint8_t> make_bridge_egress()
{
    return make_bridge(L2FIB_EGRESS);
}

std::vector<std::uint8_t> make_bridge_port()
{
    constexpr std::uint32_t head = 1;
    BridgePortContext port{};
    set(port.state, state_bound);
    set(port.pi_xid, 0x00340003);
    set(port.bridge_id, bridge_domain);
    set_flags(port.flags, {BridgePortContext::lb_type_valid, BridgePortContext::p2mp_pw_enabled});
    set_flags(port.features.features, {FeatureFlags::mac_sec_enable, FeatureFlags::dhcp_snoop_enable});
    set_field(port.features.features, FeatureFlags::mac_secure_action, 2);
    set_flags(port.features.more, {FeatureFlags::igmp_snoop_enable});
    set(port.lb_type, 2);
    set(port.p2mp_role, head);
    return ShowDataBuilder{}.add(port).bytes();
}

static BridgeMacShowData mac_show_data(const Bytes<6> &address, std::initializer_list<unsigned> flags)
{
    BridgeMacShowData data{};
    BridgeMacContext &mac = data.context.to_compose();
    set(mac.version, 4);
    set(mac.state, state_bound);
    set_flags(mac.flags, flags);
    set(mac.bridge_id, bridge_domain);
    mac.mac = address;
    set(data.platform.to_compose().bridge_learn_key, 7);
    set(data.platform.to_compose().port_learn_key, 9);
    return data;
}

static MacEntry mac_entry(std::initializer_list<unsigned> flags)
{
    MacEntry entry{};
    set_flags(entry.flags, flags);
    set(entry.bd_learn_key, 7);
    set(entry.xid_learn_key, 9);
    return entry;
}

std::vector<std::uint8_t> make_evpn_mac()
{
    MacEntry entry = mac_entry({MacEntry::remote_mac, 29});
    entry.bmac = {0x02, 0xaa, 0xbb, 0xcc, 0xdd, 0xee};
    set(entry.esi, 3);
    set(entry.ldi, 0x1f);
    set(entry.evpn_label, 24100);
    ShowDataBuilder builder;
    builder.add(mac_show_data({0x02, 0x11, 0x22, 0x33, 0x44, 0x55}, {BridgeMacContext::evpn})).add(entry);
    return builder.bytes();
}

std::vector<std::uint8_t> make_local_mac()
{
    BridgeMacShowData data = mac_show_data({0x02, 0x11, 0x22, 0x33, 0x44, 0x66}, {BridgeMacContext::alive_check});
    set(data.forwarding.to_compose().xid, 0x00340003);
    MacEntry entry = mac_entry({25, 21});
    set(entry.xid, 0x00340003);
    set(entry.learned_vlan, 100);
    return ShowDataBuilder{}.add(data).add(entry).bytes();
}

} // namespace l2fib
