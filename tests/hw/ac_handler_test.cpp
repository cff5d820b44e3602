// Which ACs and which of their NPs are shown, and what is said when the hardware's part does not hold them.
#include "examples/show_data_builder.h"
#include "hw/plain_ac.h"
#include "hw/uidb_entry.h"
#include "hw/vpls_ac.h"
#include "hw/xid_entry.h"
#include "rp/names.h"
#include "tests/support/golden.h"
#include "tests/support/test_platform.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>
#include <regex>

namespace l2fib
{

constexpr std::uint32_t all_nps = 0xffffffff;

class AcHandler : public testing::Test
{
protected:
    AcHandler()
    {
        set(parts.np_count.count, 1);
        set_converted(ac.service, service_vpls);
        set_converted(ac.state, state_bound);
        set_converted(ac.xid, 0x77);
        set(ac.requested_np, all_nps);
    }
    ~AcHandler() override { test_platform = {}; }

    /// The hardware's view of the AC, at level 1, with this hardware part.
    [[nodiscard]] Shown show(std::uint32_t direction, const ShowDataBuilder &hardware) const
    {
        std::vector<std::uint8_t> bytes = ShowDataBuilder{}.add(parts).bytes();
        bytes.resize(parts.hardware_offset());
        bytes.insert(bytes.end(), hardware.bytes().begin(), hardware.bytes().end());
        return shown_hardware(1, L2FIB_OBJTYPE_AC, direction, bytes);
    }

    AcShowData parts{};
    AcContext &ac = parts.context.to_compose();
};

template <class Record>
static ShowDataBuilder &add_all(ShowDataBuilder &builder, unsigned count, const Record &record = {})
{
    for (unsigned i = 0; i < count; ++i) {
        builder.add(record);
    }
    return builder;
}

static ShowDataBuilder egress(std::uint32_t np_count, unsigned records, const VplsNpRecord &record = {})
{
    VplsEgressBlock block{};
    set(block.np_count.to_compose().count, np_count);
    ShowDataBuilder builder;
    return add_all(builder.add(block), records, record);
}

static ShowDataBuilder ingress(std::uint32_t np_count, unsigned records, VplsIngressBlock block = {},
                               const VplsIngressNpRecord &record = {})
{
    set(block.np_count.to_compose().count, np_count);
    ShowDataBuilder builder;
    return add_all(builder.add(block), records, record).add(VplsIngressTrailer{});
}

/// The lines that name an NP or reject it.
static std::string np_lines(const std::string &text)
{
    std::string found;
    const std::regex np_line("\n( *(NP[0-9]+|Invalid NP ID))(?=\n|$)");
    for (std::sregex_iterator line(text.begin(), text.end(), np_line); line != std::sregex_iterator(); ++line) {
        found += (*line)[1].str() + "\n";
    }
    return found;
}

TEST_F(AcHandler, StatesThatAreInHardware)
{
    constexpr std::uint32_t remote_ac = 1U << AcContext::remote_ac;
    constexpr std::uint32_t no_local_members = 1U << AcContext::no_lag_local_members;
    const struct {
        std::uint32_t state;
        std::uint32_t flags;
        std::uint32_t ifhandle_status;
        std::uint32_t is_virtual;
        bool is_shown;
    } cases[] = {
        {1, 0, 0, 0, false},
        {state_bound, 0, 0, 1, true},
        {state_unbound, 0, 0, 0, true},
        {state_unbound, 0, 0, 1, false},
        {state_unbound, 0, 0, 2, false}, // no answer that a router should give
        {state_unbound, 0, 5, 1, true},
        {4, 0, 0, 0, false},
        {state_bound, remote_ac, 0, 0, false},
        {state_bound, no_local_members, 0, 0, false},
        {state_bound, ~(remote_ac | no_local_members), 0, 0, true},
    };
    for (const auto &c : cases) {
        set_converted(ac.state, c.state);
        set_converted(ac.flags, c.flags);
        test_platform.ifhandle_status = c.ifhandle_status;
        test_platform.ifhandle_virtual = c.is_virtual;
        EXPECT_EQ(show(2, egress(0, 0)).text.ends_with("Error: Number of NPs (0) returned is invalid"), c.is_shown)
            << c.state << ' ' << c.flags;
    }
}

TEST_F(AcHandler, NpsOfAVplsAc)
{
    const struct {
        std::uint32_t requested;
        std::uint32_t np_count;
        const char *lines; // of both directions
    } cases[] = {
        {12, 3, "  NP0\n  NP1\n  NP2\n"},
        {2, 3, "  NP2\n"},
        {3, 1, "  NP3\n"},
        {3, 3, "  NP3\n    Invalid NP ID\n"},
        {9, 8, "  NP9\n    Invalid NP ID\n"},
        {10, 1, "  NP0\n"},
    };
    for (const auto &c : cases) {
        set(ac.requested_np, c.requested);
        // One record more than is declared: it belongs to no NP.
        EXPECT_EQ(np_lines(show(1, ingress(c.np_count, c.np_count + 1)).text), c.lines);
        EXPECT_EQ(np_lines(show(2, egress(c.np_count, c.np_count + 1)).text), c.lines);
    }
}

TEST_F(AcHandler, StormControl)
{
    VplsIngressBlock block{};
    BridgePortContext &port = block.port.to_compose();
    set_flags(port.features.features, {FeatureFlags::storm_control_multicast});
    set(port.multicast_rate, 500);
    set(port.storm_control_unit, 0xff);
    StormControlState &state = port.storm_control[0].to_compose();
    set_converted(state.traffic[0].status, 5);
    set_converted(state.traffic[1].status, 3);
    set_converted(state.traffic[1].profile, 0x01234567);
    set_converted(state.traffic[1].token_bucket_id, 0xabc);
    set_converted(state.traffic[2].status, 9);
    VplsIngressNpRecord record{};
    set(record.storm_control.to_compose().rate[1], -500);
    set(record.storm_control.to_compose().profile_id[1], 0xffff);

    Scenes scenes;
    scenes.add("multicast, without a profile on the other kinds of traffic", show(1, ingress(1, 1, block, record)));
    set(port.storm_control_unit, 0xbf);
    scenes.add("packets per second", show(1, ingress(1, 1, block, record)));
    set_converted(state.traffic[0].status, 0);
    scenes.add("no state of broadcast", show(1, ingress(1, 1, block, record)));
    set(ac.requested_np, 7);
    set_converted(port.storm_control[7].to_compose().traffic[0].status, 4);
    scenes.add("the last NP that has a state", show(1, ingress(1, 1, block)));
    set(ac.requested_np, 8);
    scenes.add("an NP that has no state", show(1, ingress(1, 1, block)));
    expect_golden("storm-control.txt", scenes.text());
}

TEST_F(AcHandler, BridgePortsArePresentByDifferentBits)
{
    VplsNpRecord record{};
    const auto has_bports = [&](std::uint32_t direction) {
        return occurrences(
                   show(direction, direction == 1 ? ingress(1, 1, {}, {record, {}}) : egress(1, 1, record)).text,
                   "Bridge Port") == 2;
    };
    record.bports_present.bytes = {0x02, 0, 0, 0x01};
    EXPECT_TRUE(has_bports(1));  // any bit of the word
    EXPECT_FALSE(has_bports(2)); // the lowest bit of the first byte
    record.bports_present.bytes = {0x01, 0, 0, 0};
    EXPECT_TRUE(has_bports(2));
}

class PlainAc : public AcHandler
{
protected:
    PlainAc() { set_converted(ac.service, service_local_switch); }

    static ShowDataBuilder entries(unsigned count)
    {
        ShowDataBuilder builder;
        return add_all<XidEntry>(builder.add(PlainAcBlock{}), count);
    }
};

TEST_F(PlainAc, NpsAndTheEntriesThatThereAre)
{
    const struct {
        std::uint32_t requested;
        std::uint16_t np_count;
        unsigned entries;
        unsigned printed;
        bool complete;
    } cases[] = {
        {all_nps, 2, 2, 2, true}, {all_nps, 2, 1, 1, false}, {all_nps, 0, 0, 0, true},
        {7, 2, 1, 1, true},       {9, 0, 0, 0, false},       {all_nps, 0x0103, 5, 3, true},
    };
    for (const std::uint32_t direction : {1U, 2U}) {
        for (const auto &c : cases) {
            set(ac.requested_np, c.requested);
            set(parts.np_count.count, c.np_count);
            const Shown result = show(direction, entries(c.entries));
            EXPECT_EQ(occurrences(result.text, "Xconnect ID"), c.printed);
            EXPECT_EQ(result.status, c.complete ? 0 : L2FIB_SHOW_ERR_DATA);
        }
    }
}

TEST_F(PlainAc, Screens)
{
    Scenes scenes;
    set(parts.np_count.count, 3);
    scenes.add("ingress", show(1, entries(3)));
    scenes.add("egress, each NP indented deeper", show(2, entries(3)));
    scenes.add("neither ingress nor egress", show(3, entries(3)));
    test_platform.knows_statuses = false;
    scenes.add("a status that the router has no text for", show(3, entries(3)));
    set_converted(ac.service, service_vpls);
    scenes.add("VPLS, neither ingress nor egress", show(3, egress(1, 1)));
    scenes.add("VPLS, more NPs than a card has", show(1, ingress(9, 0)));
    set(ac.requested_np, 1);
    VplsNpRecord unread{};
    set(unread.uidb.to_compose().retrieval_status, 9);
    scenes.add("VPLS, an uIDB entry that was not read", show(2, egress(1, 1, unread)));
    expect_golden("ac.txt", scenes.text());
}

} // namespace l2fib
