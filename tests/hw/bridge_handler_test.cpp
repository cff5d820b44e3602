// What a bridge's flags and counts bring on the screen.
#include "examples/captures.h"
#include "examples/show_data_builder.h"
#include "hw/bridge.h"
#include "hw/bridge_domain.h"
#include "hw/bridge_member.h"
#include "rp/bridge_context.h"
#include "tests/support/golden.h"
#include "tests/support/memory.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

class BridgeHandler : public testing::Test
{
protected:
    BridgeHandler() { set(bridge.np_count.count, 1); }

    /// The hardware's view of the bridge, with one NP and as many members as it has.
    [[nodiscard]] Shown show(const ShowDataBuilder &feature_block_1 = {}) const
    {
        std::vector<std::uint8_t> bytes = ShowDataBuilder{}.add(bridge).add(hal_np).bytes();
        bytes.insert(bytes.end(), feature_block_1.bytes().begin(), feature_block_1.bytes().end());
        ShowDataBuilder rest;
        rest.add(counts).add(BridgeDomainRecord{});
        for (const BridgeMemberRecord &member : members) {
            rest.add(member).add(member);
        }
        bytes.insert(bytes.end(), rest.bytes().begin(), rest.bytes().end());
        return shown_hardware(0, L2FIB_OBJTYPE_BRIDGE, L2FIB_EGRESS, bytes);
    }

    BridgeShowData bridge{}; // converted, but for its NP count
    BridgeHalNpEntry hal_np{};
    BridgeMemberCounts counts{};
    std::vector<BridgeMemberRecord> members;
};

TEST_F(BridgeHandler, Members)
{
    set(hal_np.shg_members[0], 1);
    set(hal_np.shg_members[2], 3);
    set(hal_np.irl_shg0_bound_members, 9);
    set(counts.members, 3); // one fewer than the NP has
    members.resize(4);
    set(members[0].xid, 0xab);
    set_flags(members[1].flags, {BridgeMemberRecord::irl_bport, 22});
    set_flags(members[2].flags, {23, 24, 25, 26, 27, 28, 29, 30, 31});
    set(members[2].ldi, 0xffff);
    Scenes scenes;
    scenes.add("three of four", show());
    for (const std::uint16_t np_count : std::initializer_list<std::uint16_t>{9, 0x0103, 0}) {
        set(bridge.np_count.count, np_count);
        scenes.add("NP count " + std::to_string(np_count), show());
    }
    expect_golden("bridge.txt", scenes.text());
}

TEST_F(BridgeHandler, PwOverBviMembersByBothCounts)
{
    const struct {
        std::uint16_t in_block;
        std::uint16_t of_np_0;
        unsigned printed;
    } cases[] = {{0, 2, 0}, {2, 0, 0}, {1, 2, 1}, {2, 1, 1}, {2, 2, 2}};
    set_converted(bridge.context.to_compose().flags, 1U << BridgeContext::next_hop_has_bvi);
    for (const auto &c : cases) {
        BridgeFeatureBlock1Np np{};
        set(np.pw_over_bvi_members[2], c.of_np_0);
        set(counts.pw_over_bvi_members, c.in_block);
        members.resize(c.printed);
        const Shown result = show(ShowDataBuilder{}.add(BridgeFeatureBlock1{}).add(np));
        EXPECT_EQ(result.status, 0U);
        EXPECT_EQ(occurrences(result.text, "copy 1"), c.printed);
    }
}

TEST_F(BridgeHandler, MemoryRunsOut)
{
    const std::vector<std::uint8_t> sample = make_bridge_ingress();
    const std::string whole = shown_detail(L2FIB_OBJTYPE_BRIDGE, L2FIB_INGRESS, sample).text;
    const FailingAllocation failing(1);
    const Shown result = shown_detail(L2FIB_OBJTYPE_BRIDGE, L2FIB_INGRESS, sample);
    EXPECT_EQ(failing.not_released(), 0);
    EXPECT_EQ(result.status, L2FIB_SHOW_ERR_NOMEM);
    const std::string report = "\n      zel_l2fib_trident_print_internal_detail: print handler failed for objtype 11 : "
                               "status 0xc6258200\n\n";
    EXPECT_EQ(result.text, whole.substr(0, whole.find("\n          Storm Control Configuration")) + report);
}

} // namespace l2fib
