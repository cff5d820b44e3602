#include "client/check/facts.h"

#include "common/flags.h"
#include "hw/bridge_domain.h"
#include "hw/mac.h"
#include "hw/uidb_entry.h"
#include "hw/xid_entry.h"
#include "rp/ac_context.h"
#include "rp/bridge_context.h"
#include "rp/bridge_mac_context.h"
#include "rp/pw_context.h"

#include <bit>

namespace l2fib
{

/// A flag of the RP: they are counted from the word's highest bit.
static constexpr FactPlace rp_flag(unsigned flag)
{
    return {.path = "rp.flags", .bit = static_cast<int>(flag)};
}

/// A flag of an NP's cross-connect entry: counted from the lowest bit.
static constexpr FactPlace xid_flag(unsigned flag)
{
    return {.path = "hw.nps[].xid.flags", .bit = static_cast<int>(31 - flag)};
}

static constexpr FactPlace inverted(FactPlace place)
{
    place.is_inverted = true;
    return place;
}

static constexpr FactPlace uidb_flag(UidbFlag flag)
{
    const auto byte = static_cast<int>(flag.byte - offsetof(UidbEntry, flags));
    return {.path = "hw.nps[].uidb.flags", .bit = 8 * byte + std::countl_zero(flag.mask)};
}

// Flags that views know by their number alone.
static constexpr unsigned flood_block_unknown_unicast = 31;
static constexpr unsigned flood_block_multicast = 30;
static constexpr unsigned learn_enable = 29;
static constexpr unsigned port_level_limit = 27;
static constexpr unsigned unbound = 24;
static constexpr unsigned limit_no_learn = 23;
static constexpr unsigned limit_drop = 22;
static constexpr unsigned pw_dhcp_trusted = 16;
static constexpr unsigned pw_dhcp_snoop = 15;
static constexpr unsigned flow_label = 10;
static constexpr UidbFlag uidb_dhcp_snoop{106, 0x40};
static constexpr UidbFlag uidb_igmp_snoop{107, 0x01};
static constexpr unsigned mac_evpn = 29;

using enum Relation;
using enum OfService;
static constexpr Level error = Level::error;
static constexpr Level note_only = Level::note;
using Ac = AcContext;
using Pw = PwContext;
using Xid = XidEntry;

static constexpr Fact all_facts[] = {
    {"ac",
     "cross-connect ID",
     vpls,
     same,
     error,
     {{"rp.xid"}, {.path = "hw.nps[].uidb.destination_xid", .beside = "bridge_id"}, {"hw.nps[].bridge_ports[].xid"}},
     "Frames are sent to the cross-connect of another object, or are lost."},
    {"ac",
     "bridge",
     vpls,
     same,
     error,
     {{"rp.bridge_id"}, {"hw.nps[].uidb.bridge_id"}, {"hw.nps[].xid.bridge_id"}, {"hw.nps[].bridge_ports[].bridge_id"}},
     "Frames are switched in another bridge than the AC was configured into."},
    {"ac",
     "split-horizon group",
     vpls,
     same,
     error,
     {{"rp.shg"}, {"hw.nps[].xid.shg"}, {"hw.nps[].uidb.shg"}},
     "Flooded frames are held back from members that should have them, or go round in a loop."},
    {"ac",
     "split-horizon group",
     other_than_vpls,
     same,
     error,
     {{"rp.shg"}, {"hw.nps[].xid.shg"}},
     "Flooded frames are held back from members that should have them, or go round in a loop."},
    {"ac",
     "interface handle",
     any,
     same,
     error,
     {{"rp.ifhandle"}, {"hw.nps[].uidb.ifhandle"}},
     "Packets are counted, filtered and punted as those of another interface."},
    {"ac",
     "uIDB index",
     any,
     same,
     error,
     {{"hw.nps[].uidb.uidb_index"}, {"hw.nps[].xid.uidb_index"}},
     "Frames leave by the settings of another interface: its VLAN tags, filters and QoS."},
    {"ac",
     "MAC limit",
     any,
     same,
     error,
     {{"rp.mac_limit"}, {"hw.nps[].xid.learn_count_limit"}},
     "More or fewer MAC addresses are learned than configured; frames to the others are flooded."},
    {"ac",
     "MAC learning",
     any,
     same,
     error,
     {inverted(rp_flag(Ac::mac_learn_disable)), xid_flag(learn_enable)},
     "Addresses are learned though they should not be, or frames to them are flooded for ever."},
    {"ac",
     "storm control for broadcast",
     any,
     same,
     error,
     {rp_flag(Ac::storm_control_bcast), xid_flag(Xid::broadcast_storm_control)},
     "Broadcast is not limited though it should be, or is dropped without need."},
    {"ac",
     "storm control for multicast",
     any,
     same,
     error,
     {rp_flag(Ac::storm_control_mcast), xid_flag(Xid::multicast_storm_control)},
     "Multicast is not limited though it should be, or is dropped without need."},
    {"ac",
     "storm control for unknown unicast",
     any,
     same,
     error,
     {rp_flag(Ac::storm_control_ucast), xid_flag(Xid::unknown_unicast_storm_control)},
     "Frames to unknown addresses are not limited though they should be, or are dropped without need."},
    {"ac",
     "learn limit: no learning",
     any,
     same,
     error,
     {rp_flag(Ac::learn_limit_no_learn), xid_flag(limit_no_learn)},
     "At the MAC limit, new addresses are learned on, or learning has stopped before it."},
    {"ac",
     "learn limit: drop",
     any,
     same,
     error,
     {rp_flag(Ac::learn_limit_drop), xid_flag(limit_drop)},
     "At the MAC limit, frames of new addresses pass, or are dropped before it."},
    {"ac",
     "flood block of unknown unicast",
     any,
     same,
     error,
     {rp_flag(Ac::unknown_unicast_fb), xid_flag(flood_block_unknown_unicast)},
     "Frames to unknown addresses reach a port that is closed to them, or do not reach one that is open."},
    {"ac",
     "flood block of multicast",
     any,
     same,
     error,
     {rp_flag(Ac::mcast_fb), xid_flag(flood_block_multicast)},
     "Multicast reaches a port that is closed to it, or does not reach one that is open."},
    {"ac",
     "MAC limit of the port",
     any,
     same,
     error,
     {rp_flag(Ac::mac_limit_port_level), xid_flag(port_level_limit)},
     "Addresses are counted for the bridge in place of the port, or the other way round."},
    {"ac",
     "unbound",
     any,
     same,
     error,
     {rp_flag(Ac::xid_unbound), xid_flag(unbound)},
     "Frames are forwarded though the cross-connect is taken down, or are dropped though it is up."},
    {"ac",
     "DHCP snooping",
     any,
     same,
     error,
     {rp_flag(Ac::dhcp_snoop), uidb_flag(uidb_dhcp_snoop)},
     "DHCP packets pass without being looked at, or are punted without need."},
    {"ac",
     "IGMP snooping",
     any,
     same,
     error,
     {rp_flag(Ac::igmp_snoop), uidb_flag(uidb_igmp_snoop)},
     "Multicast groups are not learned, so that their traffic is flooded, or is lost."},

    {"pw",
     "label from the far end",
     any,
     same,
     error,
     {{"rp.disposition_label"}, {"hw.nps[].xid.disposition_label"}},
     "Packets of the pseudowire are not recognised as its own, and are dropped."},
    {"pw",
     "label to the far end",
     any,
     same,
     error,
     {{"rp.imposition_label"}, {"hw.nps[].xid.imposition_label"}},
     "The far end takes the packets for those of another pseudowire, or drops them."},
    {"pw",
     "control word",
     any,
     same,
     error,
     {rp_flag(Pw::control_word), {"hw.nps[].xid.control_word_enabled"}},
     "Four bytes too many or too few: the far end reads every packet of the pseudowire wrongly."},
    {"pw",
     "split-horizon group",
     any,
     same,
     error,
     {{"rp.shg"}, {"hw.nps[].xid.shg"}},
     "Flooded frames are held back from members that should have them, or go round in a loop."},
    {"pw",
     "bridge",
     vpls,
     same,
     error,
     {{"rp.bridge_id"}, {"hw.nps[].xid.bridge_id"}},
     "Frames are switched in another bridge than the pseudowire was configured into."},
    {"pw",
     "learn key",
     vpls,
     same,
     error,
     {{"hw.port_learn_key"}, {"hw.nps[].xid.learn_key"}},
     "Addresses are learned under another port's key: frames to them do not find the pseudowire."},
    {"pw",
     "MAC limit",
     any,
     same,
     error,
     {{"rp.mac_limit"}, {"hw.nps[].xid.learn_count_limit"}},
     "More or fewer MAC addresses are learned than configured; frames to the others are flooded."},
    {"pw",
     "MAC learning",
     any,
     same,
     error,
     {inverted(rp_flag(Pw::mac_learn_disable)), xid_flag(learn_enable)},
     "Addresses are learned though they should not be, or frames to them are flooded for ever."},
    {"pw",
     "storm control for broadcast",
     any,
     same,
     error,
     {rp_flag(Pw::storm_control_bcast), xid_flag(Xid::broadcast_storm_control)},
     "Broadcast is not limited though it should be, or is dropped without need."},
    {"pw",
     "storm control for multicast",
     any,
     same,
     error,
     {rp_flag(Pw::storm_control_mcast), xid_flag(Xid::multicast_storm_control)},
     "Multicast is not limited though it should be, or is dropped without need."},
    {"pw",
     "storm control for unknown unicast",
     any,
     same,
     error,
     {rp_flag(Pw::storm_control_ucast), xid_flag(Xid::unknown_unicast_storm_control)},
     "Frames to unknown addresses are not limited though they should be, or are dropped without need."},
    {"pw",
     "learn limit: no learning",
     any,
     same,
     error,
     {rp_flag(Pw::learn_limit_no_learn), xid_flag(limit_no_learn)},
     "At the MAC limit, new addresses are learned on, or learning has stopped before it."},
    {"pw",
     "learn limit: drop",
     any,
     same,
     error,
     {rp_flag(Pw::learn_limit_drop), xid_flag(limit_drop)},
     "At the MAC limit, frames of new addresses pass, or are dropped before it."},
    {"pw",
     "flood block of unknown unicast",
     any,
     same,
     error,
     {rp_flag(Pw::unknown_unicast_fb), xid_flag(flood_block_unknown_unicast)},
     "Frames to unknown addresses reach a far end that is closed to them, or do not reach one that is open."},
    {"pw",
     "flood block of multicast",
     any,
     same,
     error,
     {rp_flag(Pw::mcast_fb), xid_flag(flood_block_multicast)},
     "Multicast reaches a far end that is closed to it, or does not reach one that is open."},
    {"pw",
     "MAC limit of the port",
     any,
     same,
     error,
     {rp_flag(Pw::mac_limit_port_level), xid_flag(port_level_limit)},
     "Addresses are counted for the bridge in place of the pseudowire, or the other way round."},
    {"pw",
     "DHCP snooping",
     any,
     same,
     error,
     {rp_flag(Pw::dhcp_snoop), xid_flag(pw_dhcp_snoop)},
     "DHCP packets pass without being looked at, or are punted without need."},
    {"pw",
     "DHCP trust",
     any,
     same,
     error,
     {rp_flag(Pw::dhcp_trusted), xid_flag(pw_dhcp_trusted)},
     "Answers of DHCP servers are dropped at a trusted pseudowire, or accepted from an untrusted one."},
    {"pw",
     "flow label",
     any,
     same,
     error,
     {rp_flag(Pw::flow_label_impose), xid_flag(flow_label)},
     "The far end finds a label that it does not expect, or flows are not spread over paths."},

    {"bridge",
     "learn key",
     any,
     same,
     error,
     {{"hw.hal.learn_key"}, {"hw.nps[].learn_key"}},
     "Addresses are learned under another bridge's key: frames to them are flooded, or end in that bridge."},
    {"bridge",
     "VXLAN network",
     any,
     same,
     error,
     {{"hw.hal.vni_id"}, {"hw.nps[].vni_id"}},
     "Frames are sent into another VXLAN network."},
    {"bridge",
     "BVI",
     any,
     same,
     error,
     {{"rp.features.more", FeatureFlags::bvi_present},
      {"hw.hal.flags", 7 - BridgeHalContext::bvi_configured},
      {"hw.nps[].flags", 31 - BridgeDomainRecord::bvi}},
     "Frames to the bridge's own IP interface are flooded in place of being routed."},
    {"bridge",
     "TCAM index of the BVI",
     any,
     same_on_each_np,
     error,
     {{"hw.bvi_nps[].bvi_tcam_index"}, {"hw.nps[].bvi_tcam_index"}},
     "Frames to the bridge's own IP interface are not recognised as such."},
    {"bridge",
     "counter of learned addresses",
     any,
     same_on_each_np,
     note_only,
     {{"hw.hal.nps[].mac_limit_counter_index"}, {"hw.nps[].learn_counter"}},
     "The MAC limit may go by the addresses of another bridge."},

    {"mac",
     "cross-connect ID",
     any,
     same,
     error,
     {{"rp.xid"}, {"hw.xid"}},
     "Frames to this address are sent to another port than the one where it is."},
    {"mac",
     "learn key of the bridge",
     any,
     same,
     error,
     {{"hw.bridge_learn_key"}, {"hw.bd_learn_key"}},
     "Frames to this address do not find its entry, and are flooded."},
    {"mac",
     "learn key of the port",
     any,
     same,
     error,
     {{"hw.port_learn_key"}, {"hw.xid_learn_key"}},
     "A flush of the port leaves this address behind, or a flush of another port takes it away."},
    {"mac",
     "EVPN",
     any,
     same,
     error,
     {rp_flag(BridgeMacContext::evpn), {"hw.flags", 31 - mac_evpn}},
     "The address is aged or withdrawn as one of the wrong kind."},

    {"resources",
     "entries in use",
     any,
     first_at_most,
     error,
     {{"hw.nps[].requests[].in_use"}, {"hw.nps[].requests[].maximum"}},
     "The NP counts more entries than it can hold: what is added next may be missing in hardware."},
    {"resources",
     "learned addresses",
     any,
     first_at_most,
     error,
     {{"hw.nps[].macs.in_use"}, {"hw.nps[].macs.maximum"}},
     "The NP counts more addresses than it can hold: frames to new ones are flooded."},
    {"resources",
     "failed requests to set",
     any,
     zero,
     note_only,
     {{"hw.nps[].requests[].set.f_count"}},
     "What was to be programmed may be missing in hardware."},
    {"resources",
     "failed requests to modify",
     any,
     zero,
     note_only,
     {{"hw.nps[].requests[].modify.f_count"}},
     "The hardware may still forward by what was configured before."},
    {"resources",
     "failed requests to clear",
     any,
     zero,
     note_only,
     {{"hw.nps[].requests[].clear.f_count"}},
     "The hardware may still forward by what was taken away."},
    {"resources",
     "failed requests to delete all",
     any,
     zero,
     note_only,
     {{"hw.nps[].requests[].delete_all.f_count"}},
     "The hardware may still forward by what was taken away."},
    {"resources",
     "requests of a MAC scan that were not sent",
     any,
     zero,
     note_only,
     {{"hw.mac_scans[].sent_errors"}},
     "Addresses may stay in hardware after a flush."},
    {"resources",
     "failed answers to a MAC scan",
     any,
     zero,
     note_only,
     {{"hw.mac_scans[].response_errors"}},
     "Addresses may stay in hardware after a flush."},
};

std::span<const Fact> facts()
{
    return all_facts;
}

const char *text_of(Relation relation)
{
    switch (relation) {
    case same: return "same";
    case same_on_each_np: return "same on each NP";
    case first_at_most: return "first at most the second";
    case zero: break;
    }
    return "zero";
}

const char *text_of(Level level)
{
    switch (level) {
    case Level::error: return "error";
    case Level::note: return "note";
    case Level::may_differ: break;
    }
    return "may differ";
}

/// Two flags of a bridge domain say which members the NP has.
static constexpr std::uint32_t flags_of_members = 1U << 21 | 1U << BridgeDomainRecord::single_shg0_np;

static constexpr MayDiffer may_differ_fields[] = {
    {"UidbEntry.statistics_pointer", "each NP counts for itself"},
    {"BridgeFeatureBlock1Np.pbb_statistics_pointer", "each NP counts for itself"},
    {"BridgeFeatureBlock1Np.evpn_statistics_pointer", "each NP counts for itself"},
    {"XidEntry.learn_count_pointer", "each NP counts for itself"},
    {"BridgeDomainRecord.learn_counter", "each NP counts for itself"},
    {"BridgeDomainRecord.evpn_counter", "each NP counts for itself"},
    {"StormControlTraffic.token_bucket_id", "each NP has its own token buckets"},
    {"StormControlTraffic.profile", "each NP has its own table of profiles"},
    {"StormControlProfile.profile_id", "each NP has its own table of profiles"},
    {"BridgeDomainRecord.bvi_tcam_index", "each NP has its own TCAM"},
    {"BridgeDomainRecord.members", "members are at some NPs only"},
    {"BridgeDomainRecord.single_shg0_xid", "members are at some NPs only"},
    {"BridgeDomainRecord.flags", "members are at some NPs only", flags_of_members},
};

std::span<const MayDiffer> fields_that_may_differ()
{
    return may_differ_fields;
}

const char *meaning_of_difference(std::string_view section_path)
{
    constexpr struct {
        std::string_view section;
        const char *meaning;
    } meanings[] = {
        {".uidb", "Packets of this interface are treated differently, depending on the NP that they come to."},
        {".xid", "Frames to this cross-connect are sent differently, depending on the NP that they come from."},
        {".bridge_ports", "Frames are flooded to this port differently, depending on the NP that they come from."},
        {".storm_control", "Traffic is limited differently, depending on the NP that it comes to."},
        {"hw.nps", "Frames of this bridge are learned, flooded or routed differently, depending on the NP."},
    };
    for (const auto &row : meanings) {
        if (section_path.find(row.section) != std::string_view::npos) {
            return row.meaning;
        }
    }
    return "The NPs do not forward alike.";
}

} // namespace l2fib
