#include "examples/planted_faults.h"

#include "client/capture_line.h"
#include "client/capture_writer.h"
#include "client/rendering.h"
#include "examples/sample_lines.h"
#include "recording/tree.h"

#include <stdexcept>

namespace l2fib
{

static constexpr PlantedFault all_faults[] = {
    {"vpls-ac-ingress", "cross-connect ID", "NP1 uidb stands alone", {{"hw.nps[1].uidb.destination_xid", 0x00340009}}},
    {"vpls-ac-ingress", "bridge", "NP2 xid stands alone", {{"hw.nps[2].xid.bridge_id", 13}}},
    {"vpls-ac-ingress", "split-horizon group", "NP1 xid stands alone", {{"hw.nps[1].xid.shg", 1}}},
    {"local-switch-ac", "split-horizon group", "RP stands alone", {{"rp.shg", 1}}},
    {"vpls-ac-egress", "interface handle", "NP0 stands alone", {{"hw.nps[0].uidb.ifhandle", 0x0a000480}}},
    {"vpls-ac-ingress", "uIDB index", "NP2 xid stands alone", {{"hw.nps[2].xid.uidb_index", 13}}},
    {"vpls-ac-ingress", "MAC limit", "NP1 stands alone", {{"hw.nps[1].xid.learn_count_limit", 2000}}},
    {"vpls-ac-ingress", "MAC learning", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 2}}},
    {"vpls-ac-ingress", "storm control for broadcast", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 11}}},
    {"vpls-ac-ingress", "storm control for multicast", "NP0 stands alone", {{"hw.nps[0].xid.flags", 0, 12}}},
    {"vpls-ac-ingress", "storm control for unknown unicast", "NP2 stands alone", {{"hw.nps[2].xid.flags", 0, 13}}},
    {"vpls-ac-ingress", "learn limit: no learning", "RP stands alone", {{"rp.flags", 0, 20}}},
    {"vpls-ac-ingress", "learn limit: drop", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 9}}},
    {"vpls-ac-egress", "flood block of unknown unicast", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 0}}},
    {"vpls-ac-egress", "flood block of multicast", "RP stands alone", {{"rp.flags", 0, 8}}},
    {"vpls-ac-ingress", "MAC limit of the port", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 4}}},
    {"vpls-ac-ingress", "unbound", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 7}}},
    {"vpls-ac-ingress", "DHCP snooping", "NP1 stands alone", {{"hw.nps[1].uidb.flags", 0, 9}}},
    {"vpls-ac-egress", "IGMP snooping", "NP2 stands alone", {{"hw.nps[2].uidb.flags", 0, 23}}},
    {"vpls-ac-ingress", "bridge ports", "NP2 has none", {{"hw.np_flood_mask", 0x0007}}},
    {"vpls-ac-ingress",
     "storm control",
     "not as configured",
     {{"hw.nps[1].storm_control.traffic[0].status", 0x04000000}}},
    {"vpls-ac-ingress", "storm control", "not as configured", {{"hw.nps[2].storm_control.traffic[2].rate", 999}}},
    {"vpls-ac-ingress", "entry", "NP1 shows none", {{"hw.nps[1].uidb.bvi_source_xid", 1, Edit::whole, -4}}},
    {"vpls-ac-ingress", "uidb: vlan1", "NP1 stands alone", {{"hw.nps[1].uidb.vlan1", 101}}},
    {"vpls-ac-ingress", "xid: type", "NP1 stands alone", {{"hw.nps[1].xid.type", 1}}},
    {"vpls-ac-egress", "bridge_ports[0]: flags", "NP0 and NP1 disagree", {{"hw.nps[1].bridge_ports[0].flags", 0, 0}}},
    {"inconsistent-ac", "report", "XID entry: bridge domain 13 expected 12", {}},

    {"vpls-pw-ingress", "label from the far end", "NP1 stands alone", {{"hw.nps[1].xid.disposition_label", 24018}}},
    {"vpls-pw-ingress", "label to the far end", "RP stands alone", {{"rp.imposition_label", 24002}}},
    {"point-to-point-pw", "control word", "NP1 stands alone", {{"hw.nps[1].xid.type", 3}}},
    {"vpls-pw-ingress", "split-horizon group", "NP0 stands alone", {{"hw.nps[0].xid.shg", 0}}},
    {"vpls-pw-ingress", "bridge", "NP1 stands alone", {{"hw.nps[1].xid.bridge_id", 13}}},
    {"vpls-pw-ingress", "learn key", "line card stands alone", {{"hw.port_learn_key", 8}}},
    {"vpls-pw-ingress", "MAC limit", "NP1 stands alone", {{"hw.nps[1].xid.learn_count_limit", 0}}},
    {"point-to-point-pw", "MAC learning", "RP stands alone", {{"rp.flags", 0, 8}}},
    {"vpls-pw-ingress", "storm control for broadcast", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 11}}},
    {"vpls-pw-ingress", "storm control for multicast", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 12}}},
    {"vpls-pw-ingress", "storm control for unknown unicast", "RP stands alone", {{"rp.flags", 0, 11}}},
    {"vpls-pw-ingress", "learn limit: no learning", "RP stands alone", {{"rp.flags", 0, 6}}},
    {"vpls-pw-ingress", "learn limit: drop", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 9}}},
    {"vpls-pw-ingress", "flood block of unknown unicast", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 0}}},
    {"vpls-pw-ingress", "flood block of multicast", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 1}}},
    {"vpls-pw-ingress", "MAC limit of the port", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 4}}},
    {"vpls-pw-ingress", "DHCP snooping", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 16}}},
    {"vpls-pw-ingress", "DHCP trust", "RP stands alone", {{"rp.flags", 0, 15}}},
    {"vpls-pw-ingress", "flow label", "NP1 stands alone", {{"hw.nps[1].xid.flags", 0, 21}}},

    {"bridge-ingress", "learn key", "NP1 stands alone", {{"hw.nps[1].learn_key", 8}}},
    {"bridge-egress",
     "VXLAN network",
     "NP1 stands alone",
     {{"hw.nps[0].flags", 0, 20},
      {"hw.nps[1].flags", 0, 20},
      {"hw.nps[2].flags", 0, 20},
      {"hw.nps[1].vni_id", 500 << 8}}},
    {"bridge-ingress", "BVI", "NP1 stands alone", {{"hw.nps[1].flags", 0, 19}}},
    {"bridge-ingress",
     "TCAM index of the BVI",
     "NP1 bvi_nps and NP1 bvi_tcam_index disagree",
     {{"hw.nps[1].bvi_tcam_index", 0x99 << 8}}},
    {"bridge-ingress",
     "counter of learned addresses",
     "NP2 hal and NP2 learn_counter disagree",
     {{"hw.nps[2].learn_counter", 0x2099}}},
    {"bridge-ingress", "copies of members", "copy 1 is not like copy 0", {{"hw.nps[0].members[3].label", 24101}}},
    {"bridge-ingress", "members", "the total is another", {{"hw.hal.nps[1].shg_members_0", 0x0200}}},
    {"bridge-ingress", "members", "not as many as the HAL has", {{"hw.nps[1].num_members", 5}}},
    {"bridge-ingress", "storm control", "not as configured", {{"hw.storm_control.traffic[1].status", 5}}},
    {"bridge-ingress", "mgid index", "NP2 stands alone", {{"hw.nps[2].mgid_index", 82}}},

    {"local-mac", "cross-connect ID", "RP and line card disagree", {{"hw.xid", 0x00340009}}},
    {"local-mac",
     "learn key of the bridge",
     "line card bridge_learn_key and line card bd_learn_key disagree",
     {{"hw.bd_learn_key", 8}}},
    {"local-mac",
     "learn key of the port",
     "line card port_learn_key and line card xid_learn_key disagree",
     {{"hw.xid_learn_key", 8}}},
    {"evpn-mac", "EVPN", "RP and line card disagree", {{"hw.flags", 0, 2}}},

    {"resources", "entries in use", "too many", {{"hw.nps[1].requests[0].in_use", 20000}}},
    {"resources", "learned addresses", "too many", {{"hw.nps[1].macs.in_use", 9999999}}},
    {"resources", "failed requests to set", "not 0", {{"hw.nps[1].requests[0].set.f_count", 1}}},
    {"resources", "failed requests to modify", "not 0", {{"hw.nps[0].requests[1].modify.f_count", 1}}},
    {"resources", "failed requests to clear", "not 0", {{"hw.nps[1].requests[0].clear.f_count", 1}}},
    {"resources", "failed requests to delete all", "not 0", {{"hw.nps[1].requests[0].delete_all.f_count", 1}}},
    {"resources",
     "requests of a MAC scan that were not sent",
     "not 0",
     {{"hw.mac_scans[0].responses_to_freed", 1, Edit::whole, -60}}},
    {"resources",
     "failed answers to a MAC scan",
     "not 0",
     {{"hw.mac_scans[0].responses_to_freed", 1, Edit::whole, -4}}},
    {"resources", "MAC scans", "not all are answered", {{"hw.mac_scans[0].messages[1].responses", 11}}},

    // Across objects: an AC in bridge 13, which is not bound, and references to it and to others that are not there.
    {"vpls-ac-private",
     nullptr,
     nullptr,
     {{"rp.ifhandle", 0x0034000d, Edit::whole, 12}, {"rp.bridge_id", 13}, {"rp.ifhandle", 2, Edit::whole, -4}}},
    {"bridge-private", nullptr, nullptr, {{"rp.bridge_id", 13}, {"rp.bridge_id", 1, Edit::whole, -4}}},
    {"bridge-egress",
     nullptr,
     nullptr,
     {{"hw.nps[0].members[0].xid", 0x0034000d}, {"hw.nps[0].members[1].xid", 0x0034000d}}},
    {"bridge-ingress",
     nullptr,
     nullptr,
     {{"hw.nps[0].members[0].xid", 0x0034000f}, {"hw.nps[0].members[1].xid", 0x0034000f}}},
    {"local-mac", nullptr, nullptr, {{"rp.xid", 0x0034000e}, {"hw.xid", 0x0034000e}}},
};

static constexpr const char *across[] = {"member of bridge", "MAC address", "member of bridge", "bridge"};

std::span<const PlantedFault> planted_faults()
{
    return all_faults;
}

std::span<const char *const> planted_across()
{
    return across;
}

static Capture sample_named(std::string_view name)
{
    for (const SampleCapture &sample : sample_captures) {
        if (sample.name == name) {
            return parse_capture(sample_line(sample)).capture;
        }
    }
    throw std::logic_error("no such sample: " + std::string(name));
}

static void apply(const Edit &edit, Capture &capture)
{
    Capture shown = capture;
    recording::Tree tree;
    tree.begin(shown.show_data);
    record_view(shown, tree);
    for (const recording::TreeValue &value : tree.values()) {
        if (tree.path_of(value) != edit.path || !value.place) {
            continue;
        }
        std::uint8_t *field = &capture.show_data[value.place->offset] + edit.shift;
        if (edit.bit != Edit::whole) {
            field[edit.bit / 8] ^= static_cast<std::uint8_t>(0x80U >> static_cast<unsigned>(edit.bit) % 8);
            return;
        }
        for (std::size_t i = 0; i < value.width; ++i) {
            field[value.width - 1 - i] = static_cast<std::uint8_t>(edit.number >> 8 * i);
        }
        return;
    }
    throw std::logic_error("no such value: " + std::string(edit.path));
}

Capture planted(const PlantedFault &fault)
{
    Capture capture = sample_named(fault.sample);
    for (const Edit &edit : fault.edits) {
        if (edit.path != nullptr) {
            apply(edit, capture);
        }
    }
    return capture;
}

std::string planted_lines()
{
    std::string lines;
    for (const PlantedFault &fault : planted_faults()) {
        lines += format_capture(planted(fault)) + '\n';
    }
    return lines;
}

} // namespace l2fib
