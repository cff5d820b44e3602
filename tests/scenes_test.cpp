// What the counts, states and flags of show data bring on the screen, beyond the fields and flags that
// tests/records_test.cpp has. All that a scene does not give is 0.
#include "hw/bridge.h"
#include "hw/bridge_domain.h"
#include "hw/bridge_member.h"
#include "hw/hal_summary.h"
#include "hw/mac.h"
#include "hw/plain_ac.h"
#include "hw/pw.h"
#include "hw/resource.h"
#include "hw/vpls_ac.h"
#include "rp/bridge_context.h"
#include "rp/event_statistics.h"
#include "rp/state_summary.h"
#include "tests/support/buffer_layout.h"
#include "tests/support/golden.h"
#include "tests/support/ladder.h"
#include "tests/support/test_platform.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>
#include <regex>

namespace l2fib
{

using Show = std::function<std::uint32_t(std::uint8_t *show_data, std::uint64_t size)>;
using NpEntry = Bytes<np_entry_size>;

/// An object, and what most scenes of it have in common.
struct Object {
    BufferLayout layout;
    Values values;
    Show show;
};

struct Scene {
    const char *title;
    const Object &object;
    Values values;
    void (*prepare_router)() = [] {};
};

static Show detail(std::uint32_t objtype, std::uint32_t direction)
{
    return [=](std::uint8_t *show_data, std::uint64_t size) {
        return zel_l2fib_print_internal(objtype, 0, direction, L2FIB_VIEW_DETAIL, show_data, size);
    };
}

/// The text of a file of scenes.
static std::string play(std::initializer_list<Scene> list)
{
    Scenes scenes;
    for (const Scene &scene : list) {
        scene.prepare_router();
        const GuardedBytes data(scene.object.layout.filled_with(scene.object.values + scene.values));
        scenes.add(scene.title, shown([&] { return scene.object.show(data.data(), data.size()); }));
        test_platform = {};
    }
    return scenes.text();
}

static const Show summary_of_hal = [](std::uint8_t *show_data, std::uint64_t size) {
    return zel_l2fib_trident_print_summary(0, show_data, size);
};
static const Show summary_of_states = [](std::uint8_t *show_data, std::uint64_t size) {
    return zel_l2fib_platform_summary_hw_print_internal(0, 0, show_data, size);
};
static const Show statistics_of_events = [](std::uint8_t *show_data, std::uint64_t size) {
    return zel_l2fib_platform_msg_counter_hw_print_internal(0, 0, show_data, size);
};

static const BufferLayout vpls_ac_egress =
    layout_of<AcShowData, NpEntry, VplsEgressBlock, VplsNpRecord>("ac", "np_entry", "block", "np");
static const BufferLayout vpls_ac_ingress =
    layout_of<AcShowData, NpEntry, VplsIngressBlock, VplsIngressNpRecord, VplsIngressTrailer>( //
        "ac", "np_entry", "block", "np", "trailer");
static const BufferLayout plain_ac =
    layout_of<AcShowData, NpEntry[3], PlainAcBlock, XidEntry[3]>("ac", "np_entry", "block", "xid");
static const BufferLayout plain_ac_cut_short = layout_of<AcShowData, NpEntry, Bytes<191>>("ac", "np_entry", "block");
static const BufferLayout pw_point_to_point = layout_of<PwHardwareShowData, PwNpRecord[2]>("pw", "np");
static const BufferLayout pw_vpls =
    layout_of<PwHardwareShowData, XidEntry, PwIngressBlock, StormControlProfile>("pw", "xid", "ingress", "profile");
static const BufferLayout bridge_with_members =
    layout_of<BridgeShowData, BridgeHalNpEntry, BridgeMemberCounts, BridgeDomainRecord, BridgeMemberRecord[4][2]>(
        "bridge", "hal_np", "counts", "domain", "member");
static const BufferLayout bridge_with_bvi =
    layout_of<BridgeShowData, BridgeHalNpEntry, BridgeFeatureBlock1, BridgeFeatureBlock1Np, BridgeMemberCounts,
              BridgeDomainRecord, BridgeMemberRecord[2][2]>("bridge", "hal_np", "block_1", "block_1_np", "counts",
                                                            "domain", "member");
static const BufferLayout hal =
    layout_of<BigU32, BigU32, BigU16, HalSummaryTotals>("np_count", "mark", "status", "totals");

// clang-format off
static const Values vpls = {
    {"ac.np_count.count", 1}, {"ac.context.service", 2}, {"ac.context.state", 2}, {"ac.context.xid", 0x77},
    {"block.np_count.count", 1}};
static const Values plain = {
    {"ac.np_count.count", 0x0103}, {"ac.context.service", 1}, {"ac.context.state", 2}, {"ac.context.requested_np", 10}};
static const Values bound_pw = {{"pw.rp.context.state", 2}, {"pw.np_count", 1}};
static const Values one_np = {{"bridge.np_count.count", 1}};

static const Object ac_without_nps = {vpls_ac_egress, vpls + Values{{"block.np_count.count", 0}}, detail(L2FIB_OBJTYPE_AC, L2FIB_EGRESS)};
static const Object egress_ac = {vpls_ac_egress, vpls, detail(L2FIB_OBJTYPE_AC, L2FIB_EGRESS)};
static const Object ingress_ac = {vpls_ac_ingress, vpls, detail(L2FIB_OBJTYPE_AC, L2FIB_INGRESS)};
static const Object ac_of_no_direction = {vpls_ac_egress, vpls, detail(L2FIB_OBJTYPE_AC, 3)};
static const Object plain_ingress_ac = {plain_ac, plain, detail(L2FIB_OBJTYPE_AC, L2FIB_INGRESS)};
static const Object plain_egress_ac = {plain_ac, plain, detail(L2FIB_OBJTYPE_AC, L2FIB_EGRESS)};
static const Object plain_ac_of_no_direction = {plain_ac, plain, detail(L2FIB_OBJTYPE_AC, 3)};
static const Object short_plain_ac = {plain_ac_cut_short, plain, detail(L2FIB_OBJTYPE_AC, L2FIB_EGRESS)};
static const Object point_to_point_pw = {pw_point_to_point, bound_pw + Values{{"pw.np_count", 2}}, detail(L2FIB_OBJTYPE_MPLS, L2FIB_INGRESS)};
static const Object ingress_pw = {pw_vpls, bound_pw + Values{{"pw.rp.context.service", 2}}, detail(L2FIB_OBJTYPE_MPLS, L2FIB_INGRESS)};
static const Object egress_pw = {pw_vpls, ingress_pw.values, detail(L2FIB_OBJTYPE_MPLS, L2FIB_EGRESS)};
static const Object bridge = {bridge_with_members, one_np, detail(L2FIB_OBJTYPE_BRIDGE, L2FIB_EGRESS)};
static const Object bvi_bridge = {bridge_with_bvi, one_np + Values{{"bridge.context.flags", 8}}, detail(L2FIB_OBJTYPE_BRIDGE, L2FIB_EGRESS)};
static const Object port = {layout_of<BridgePortContext>("port"), {}, detail(L2FIB_OBJTYPE_BRIDGE_PORT, L2FIB_INGRESS)};
static const Object hal_summary = {hal, {}, summary_of_hal};
static const Object state_summary = {layout_of<StateSummary, U8>("summary", "hardware"), {}, summary_of_states};
static const Object event_statistics = {layout_of<EventCounts, EventTimes>("counts", "times"), {}, statistics_of_events};

static void has_other_card() { test_platform.card_type = 0; }
static void has_virtual_interface() { test_platform.ifhandle_virtual = 1; }
static void answers_2() { test_platform.ifhandle_virtual = 2; }
static void knows_no_interface() { test_platform.ifhandle_virtual = 1; test_platform.ifhandle_status = 5; }
static void knows_no_statuses() { test_platform.knows_statuses = false; }

TEST(Scenes, StatesOfAnAc)
{
    expect_golden("ac-states.txt", play({
        {"without a name", ac_without_nps, {{"ac.context.service", 0xffffffff}, {"ac.context.state", 5}}},
        {"created", ac_without_nps, {{"ac.context.state", 1}}},
        {"bound", ac_without_nps, {}, has_virtual_interface},
        {"unbound", ac_without_nps, {{"ac.context.state", 3}}},
        {"unbound, of a virtual interface", ac_without_nps, {{"ac.context.state", 3}}, has_virtual_interface},
        {"unbound, of an interface of which the router says 2", ac_without_nps, {{"ac.context.state", 3}}, answers_2},
        {"unbound, of an unknown interface", ac_without_nps, {{"ac.context.state", 3}}, knows_no_interface},
        {"deleted", ac_without_nps, {{"ac.context.state", 4}}},
        {"remote", ac_without_nps, {{"ac.context.flags", 0x80000000}}},
        {"of a bundle without members here", ac_without_nps, {{"ac.context.flags", 0x00200000}}},
        {"with every other flag", ac_without_nps, {{"ac.context.flags", 0x7fdfffff}}},
    }));
}

TEST(Scenes, VplsAc)
{
    const Values bridged = {{"np.uidb.retrieval_status", 1}, {"np.xid.type", 10}};
    expect_golden("vpls-ac.txt", play({
        {"more NPs than a card has", ingress_ac, {{"block.np_count.count", 9}}},
        {"a direction that is none", ac_of_no_direction, {}},
        {"bridge ports by the lowest bit of their first byte", egress_ac, {{"np.bports_present", 1}}},
        {"no bridge ports by the other bits", egress_ac, {{"np.bports_present", 0xfffffffe}}},
        {"on the ingress side by any bit", ingress_ac, {{"np.np.bports_present", 0x01000000}}},
        {"an uIDB entry that was not read, ingress", ingress_ac, {{"np.np.uidb.retrieval_status", 0x1234}}},
        {"an uIDB entry that was not read, egress", egress_ac, {{"np.uidb.retrieval_status", 9}}, knows_no_statuses},
        {"storm control of a cross-connect", egress_ac, bridged + Values{{"np.xid.flags", 0x000a0000}}},
        {"limits of a cross-connect", egress_ac, bridged + Values{
            {"np.xid.flags", 0x00020000}, {"np.xid.learn_count_limit", 0xfffffffe}, {"np.xid.learn_count_pointer", 0xf},
            {"np.xid.msti", 3}}},
    }));
}

/// The NPs that are named, by the one that is requested. One record more than is declared belongs to none.
TEST(Scenes, NpsOfAVplsAc)
{
    const struct {
        const char *title;
        std::uint32_t direction;
        BufferLayout layout;
    } sides[] = {
        {"ingress", L2FIB_INGRESS, layout_of<AcShowData, NpEntry, VplsIngressBlock, VplsIngressNpRecord[9]>("ac", "np_entry", "block", "np")},
        {"egress", L2FIB_EGRESS, layout_of<AcShowData, NpEntry, VplsEgressBlock, VplsNpRecord[9]>("ac", "np_entry", "block", "np")},
    };
    std::string text;
    for (const auto &side : sides) {
        for (const std::uint64_t np_count : std::initializer_list<std::uint64_t>{1, 2, 3, 8}) {
            Ladder ladder;
            for (std::size_t requested = 0; requested <= 11; ++requested) {
                const Values values = {{"block.np_count.count", np_count}, {"ac.context.requested_np", std::uint64_t{requested}}};
                const GuardedBytes data(side.layout.filled_with(vpls + values));
                const Shown result = shown([&] { return detail(L2FIB_OBJTYPE_AC, side.direction)(data.data(), data.size()); });
                std::string nps;
                const std::regex np("NP[0-9]+(\n *Invalid NP ID)?(?=\n)");
                for (std::sregex_iterator found(result.text.begin(), result.text.end(), np); found != std::sregex_iterator(); ++found) {
                    nps += ' ' + std::regex_replace(found->str(), std::regex("\n *"), ": ");
                }
                ladder.add(requested, nps);
            }
            text += std::string("== ") + side.title + ", of " + std::to_string(np_count) + '\n' + ladder.text();
        }
    }
    expect_golden("vpls-ac-nps.txt", text);
}

TEST(Scenes, StormControlOfAnAc)
{
    const Values multicast = {
        {"block.port.features.features", 0x200}, {"block.port.multicast_rate", 500}, {"block.port.storm_control_unit", 0xff},
        {"block.port.storm_control[0].traffic[0].status", 5}, {"block.port.storm_control[0].traffic[1].status", 3},
        {"block.port.storm_control[0].traffic[1].profile", 0x01234567},
        {"block.port.storm_control[0].traffic[1].token_bucket_id", 0xabc},
        {"block.port.storm_control[0].traffic[2].status", 9}, {"np.storm_control.rate[1]", 0xfffffe0c},
        {"np.storm_control.profile_id[1]", 0xffff}, {"np.np.uidb.retrieval_status", 1}};
    const Values no_broadcast = {{"block.port.storm_control[0].traffic[0].status", 0}};
    const Values others = {{"block.port.features.features", 0xc00}, {"block.port.unknown_unicast_rate", 0xfffffff9}};
    const Values last_np = {{"ac.context.requested_np", 7}, {"block.port.storm_control[7].traffic[0].status", 4}};
    expect_golden("storm-control.txt", play({
        {"multicast", ingress_ac, multicast},
        {"packets per second", ingress_ac, multicast + Values{{"block.port.storm_control_unit", 0xbf}}},
        {"broadcast and unknown unicast", ingress_ac, multicast + others},
        {"no state of broadcast", ingress_ac, multicast + no_broadcast},
        {"not enabled", ingress_ac, multicast + Values{{"block.port.features.features", 0}}},
        {"the last NP that has a state", ingress_ac, multicast + last_np},
        {"an NP that has no state", ingress_ac, multicast + Values{{"ac.context.requested_np", 8}}},
    }));
}

TEST(Scenes, PlainAc)
{
    expect_golden("plain-ac.txt", play({
        {"ingress", plain_ingress_ac, {}},
        {"egress, each NP indented deeper", plain_egress_ac, {}},
        {"egress, NP 9", plain_egress_ac, {{"ac.context.requested_np", 9}}},
        {"no NPs", plain_egress_ac, {{"ac.np_count.count", 0}}},
        {"an entry that ends early", short_plain_ac, {{"ac.np_count.count", 1}}},
        {"neither ingress nor egress", plain_ac_of_no_direction, {}},
        {"a status that the router has no text for", plain_ac_of_no_direction, {}, knows_no_statuses},
    }));
}

TEST(Scenes, PathsOfAPw)
{
    const Values paths = {
        {"ingress.paths.primary.ifhandle", 0xa}, {"ingress.paths.primary.sfp_or_lagid", 0xb},
        {"ingress.paths.backup.ifhandle", 0xc}, {"ingress.paths.backup.sfp_or_lagid", 0xd}};
    const auto with_flags = [&](std::uint32_t state, std::uint8_t of_primary, std::uint8_t of_backup) {
        return paths + Values{{"ingress.paths.state.flags", state}, {"ingress.paths.primary.flags", of_primary},
                              {"ingress.paths.backup.flags", of_backup}};
    };
    expect_golden("pw-paths.txt", play({
        {"unresolved", ingress_pw, with_flags(0xc0000000, 0x40, 0x40)},
        {"no backup", ingress_pw, with_flags(0, 0x80, 0)},
        {"no ifhandles", ingress_pw, with_flags(0x40000000, 0, 0x80)},
        {"both paths", ingress_pw, with_flags(0x40000000, 0xc0, 0x7f)},
        {"not on the egress side", egress_pw, with_flags(0x40000000, 0xc0, 0x7f)},
    }));
}

/// So far to the right that every line is wrapped. A view that is called directly takes a context in host order.
TEST(Scenes, DeepLevels)
{
    const auto far_right = [](std::uint32_t objtype, std::uint32_t direction) {
        return [=](std::uint8_t *show_data, std::uint64_t size) {
            return zel_l2fib_trident_print_internal_detail(34, objtype, 1, direction, 0, show_data, size);
        };
    };
    const Values vpls_in_host_order = {{"pw.rp.context.service", 0x02000000}, {"pw.rp.context.state", 0x02000000}};
    const Object pw = {pw_vpls, vpls_in_host_order, far_right(L2FIB_OBJTYPE_MPLS, L2FIB_INGRESS)};
    const Object bridge_far_right = {bridge_with_members, one_np, far_right(L2FIB_OBJTYPE_BRIDGE, L2FIB_EGRESS)};
    expect_golden("deep-levels.txt", play({
        {"both paths of a PW", pw,
         {{"pw.np_count", 1}, {"ingress.paths.state.flags", 0x40000000}, {"ingress.paths.primary.flags", 0xc0},
          {"ingress.paths.backup.flags", 0xc0}}},
        {"a bridge and a member", bridge_far_right,
         {{"hal_np.shg_members[0]", 1}, {"counts.members", 1}, {"member[0][0].flags", 0xff800000}}},
    }));
}

TEST(Scenes, Pw)
{
    const Values no_name = {{"pw.rp.context.service", 6}, {"pw.rp.context.state", 5}, {"pw.rp.context.bridge_id", 0xffffffff}};
    expect_golden("pw.txt", play({
        {"point-to-point, the NPs of its records", point_to_point_pw, {{"np[0].np", 5}, {"np[1].np", 7}}},
        {"point-to-point, no NP", point_to_point_pw, {{"pw.np_count", 0}}},
        {"point-to-point, more NPs than a card has", point_to_point_pw, {{"pw.np_count", 9}}},
        {"VPLS, no NP", ingress_pw, {{"pw.np_count", 0}, {"pw.rp.platform.layer_flags", 0x80}}},
        {"VPLS, more NPs than a card has", ingress_pw, {{"pw.np_count", 9}, {"pw.rp.platform.layer_flags", 0x7f}}},
        {"VPLS, not bound", ingress_pw, {{"pw.rp.context.state", 3}}},
        {"a service that no PW has", ingress_pw, {{"pw.rp.context.service", 1}}},
        {"without a name", ingress_pw, no_name},
    }));
}

TEST(Scenes, Bridge)
{
    const Values members = {
        {"hal_np.shg_members[0]", 1}, {"hal_np.shg_members[2]", 3}, {"hal_np.irl_shg0_bound_members", 9},
        {"member[0][0].xid", 0xab}, {"member[0][1].xid", 0xac}, {"member[1][0].flags", 0x40400000},
        {"member[2][1].flags", 0xff800000}, {"member[2][1].ldi", 0xffff}};
    expect_golden("bridge.txt", play({
        {"no NP", bridge, {{"bridge.np_count.count", 0}}},
        {"more NPs than a card has", bridge, {{"bridge.np_count.count", 9}}},
        {"more by the upper byte of the count", bridge, {{"bridge.np_count.count", 0x0103}}},
        {"fewer members than the NP has", bridge, members + Values{{"counts.members", 3}}},
        {"members that are counted in 16 bits", bridge,
         {{"hal_np.shg_members[0]", 0xffff}, {"hal_np.shg_members[1]", 2}, {"counts.members", 9}}},
        {"members of one group", bridge, {{"hal_np.shg_members[1]", 1}, {"counts.members", 9}}},
    }));
    const char *of_np = "block_1_np.pw_over_bvi_members[2]";
    const char *of_bridge = "counts.pw_over_bvi_members";
    expect_golden("bridge-bvi.txt", play({
        {"no PWs of the bridge", bvi_bridge, {{of_np, 2}, {of_bridge, 0}}},
        {"no PWs of the NP", bvi_bridge, {{of_np, 0}, {of_bridge, 2}}},
        {"fewer PWs of the bridge", bvi_bridge, {{of_np, 2}, {of_bridge, 1}}},
        {"fewer PWs of the NP", bvi_bridge, {{of_np, 1}, {of_bridge, 2}}},
    }));
}

TEST(Scenes, BridgePort)
{
    const GuardedBytes notified(port.layout.filled_with({{"port.last_notification", 2'000'000'000}}));
    EXPECT_EQ(printed([&] { port.show(notified.data(), notified.size()); }).find("N/A"), std::string::npos);
}

/// All names of an enumeration, and what stands for a number without one.
TEST(Scenes, NamesOfNumbers)
{
    const Values limited = {{"block.port.features.features", 0x200}, {"block.port.storm_control[0].traffic[0].status", 3}};
    const struct {
        const char *label; // as a regular expression
        Object object;
        Values values;
        const char *field;
        unsigned highest;
    } cases[] = {
        {"AC: ", ac_without_nps, {}, "ac.context.service", 6},
        {"PW: ", egress_pw, {{"pw.rp.context.state", 1}}, "pw.rp.context.service", 6},
        {"State: ", ac_without_nps, {}, "ac.context.state", 5},
        {"SHG: ", ac_without_nps, {}, "ac.context.shg", 3},
        {"P2MP Role: ", port, {{"port.flags", 0x200}}, "port.p2mp_role", 5},
        {"  Type: ", plain_ingress_ac, {}, "xid[0].type", 11},
        {"Remote type: ", plain_ingress_ac, {}, "xid[0].remote_type", 11},
        {"Multicast      \\|", ingress_ac, limited, "block.port.storm_control[0].traffic[1].status", 6},
    };
    std::string text;
    for (const auto &c : cases) {
        for (unsigned number = 0; number <= c.highest; ++number) {
            const GuardedBytes data(c.object.layout.filled_with(c.object.values + c.values + Values{{c.field, number}}));
            const std::string screen = printed([&] { c.object.show(data.data(), data.size()); });
            std::smatch name;
            std::regex_search(screen, name, std::regex(std::string(c.label) + "[^,|\n]*"));
            text += std::string(c.field) + ' ' + std::to_string(number) + ": " + name.str() + '\n';
        }
    }
    expect_golden("names.txt", text);
}

TEST(Scenes, Summaries)
{
    const Values negative = {
        {"summary.kinds[8].created", 0xffffffff}, {"summary.kinds[8].bound", 12345}, {"summary.kinds[8].unbound", 0x80000000}};
    expect_golden("summaries.txt", play({
        {"HAL, no NP, and bytes that are none's", hal_summary, {{"mark", 0x01020304}, {"totals.load_balance_type", 0x0506}}},
        {"HAL, two NPs, and too few bytes of them", hal_summary, {{"np_count", 2}}},
        {"HAL, more NPs than 32 bits can count the bytes of", hal_summary, {{"np_count", 0xffffffff}}},
        {"HAL, a negative mark", hal_summary,
         {{"np_count", 1}, {"mark", 0x80000000}, {"status", 0xabcd}, {"totals.negative_mac_counter_hits", 0xffffffff}}},
        {"negative counts", state_summary, negative},
        {"another card", state_summary, {}, has_other_card},
        {"negative events", event_statistics, {{"counts.kinds[17].modified", 0xfffffffe}}},
        {"events of another card", event_statistics, {}, has_other_card},
    }));
}
// clang-format on

static const Show private_resources = [](std::uint8_t *show_data, std::uint64_t size) {
    return zel_l2fib_trident_print_internal_private(1, L2FIB_OBJTYPE_RSRC_MON, 1, 1, 0, show_data, size);
};

TEST(Scenes, ResourceTotalsWrapAndNumbersAreSigned)
{
    const BufferLayout layout =
        layout_of<ResourceShowData, BigU32, ResourceUse[resource_types][max_nps], MacScan[max_nps], BigU32>(
            "head", "np_count", "use", "scan", "macs");
    Values values = {{"head.length", sizeof(ResourceData) + 4}, {"np_count", 1}};
    for (unsigned type = 0; type < resource_types; ++type) {
        const std::string modify = "use[" + std::to_string(type) + "][0].operations[1].";
        values = values + Values{{modify + "t_count", 0x80000001}, {modify + "time", std::uint64_t{1} << 63U}};
    }
    const Object resources = {layout, values, private_resources};
    expect_golden("resource-totals.txt", play({{"as many as 32 and 64 bits hold", resources, {}}}));
}

TEST(Scenes, ResourceLengthsThatDoNotFit)
{
    const struct {
        std::uint64_t length;
        std::uint64_t np_count;
        std::size_t size; // behind the length
    } cases[] = {
        {13256, 2, 13256}, {13255, 1, 13256}, {13256, 1, 13255}, {3, 1, 13256},     {13256, 9, 4},     {13256, 0, 4},
        {3, 9, 13256},     {20000, 1, 13256}, {20000, 1, 20000}, {13256, 1, 20000}, {13284, 8, 13284},
    };
    Scenes scenes;
    for (const auto &c : cases) {
        const auto layout = layout_of<ResourceShowData, BigU32>("head", "np_count");
        std::vector<std::uint8_t> bytes = layout.filled_with({{"head.length", c.length}, {"np_count", c.np_count}});
        bytes.resize(sizeof(ResourceShowData) + c.size);
        const GuardedBytes data(bytes);
        Shown result = shown([&] { return private_resources(data.data(), data.size()); });
        if (const unsigned nps = occurrences(result.text, "Mac Scan Summary"); nps != 0) {
            result.text = std::to_string(nps) + " NPs";
        }
        scenes.add("length " + std::to_string(c.length) + ", " + std::to_string(c.size) + " bytes, NP count " +
                       std::to_string(c.np_count),
                   result);
    }
    expect_golden("resource-lengths.txt", scenes.text());
}

} // namespace l2fib
