// What a bridge's flags and counts bring on the screen, and what is said when the show data ends early.
#include "examples/captures.h"
#include "examples/show_data_builder.h"
#include "hw/bridge_domain.h"
#include "hw/bridge.h"
#include "hw/bridge_member.h"
#include "hw/storm_control.h"
#include "rp/bridge_context.h"
#include "tests/support/memory.h"
#include "tests/support/printed.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

class BridgeHandler : public testing::Test
{
protected:
    BridgeHandler() { set(bridge.np_count, 1); }

    /// The show data of a bridge with one NP and no feature blocks, in the order of its layout.
    [[nodiscard]] std::vector<std::uint8_t> bytes() const
    {
        ShowDataBuilder builder;
        builder.add(bridge).add(hal_np).add(counts).add(domain);
        for (const BridgeMemberRecord &member : members) {
            builder.add(member).add(member);
        }
        return builder.bytes();
    }

    static Shown show(std::uint32_t direction, const std::vector<std::uint8_t> &bytes)
    {
        return shown_hardware(0, L2FIB_OBJTYPE_BRIDGE, direction, bytes);
    }

    /// The screen behind the heading of the hardware's part.
    [[nodiscard]] std::string domain_lines() const
    {
        const std::string text = show(2, bytes()).text;
        const std::string heading = "Hardware Information:";
        return text.substr(text.find(heading) + heading.size());
    }

    BridgeShowData bridge{}; // converted, but for its NP count
    BridgeHalNpEntry hal_np{};
    BridgeMemberCounts counts{};
    BridgeDomainRecord domain{};
    std::vector<BridgeMemberRecord> members;
};

TEST_F(BridgeHandler, Members)
{
    set_converted(hal_np.shg_members[0], 1);
    set_converted(hal_np.shg_members[2], 3);
    set_converted(hal_np.irl_shg0_bound_members, 9);
    set(counts.members, 3); // one fewer than the NP has
    members.resize(4);
    set(members[0].xid, 0xab);
    set_flags(members[1].flags, {BridgeMemberRecord::irl_bport, 22});
    set(members[2].flags.word, 0xff800000);
    set(members[2].ldi, 0xffff);
    const std::string text = domain_lines();
    EXPECT_EQ(text.substr(text.find("\n      Bridge Member")), R"(
      Bridge Member 0, copy 0 
        Flags: NoneXID: 0x000000ab
      Bridge Member 0, copy 1 
        Flags: NoneXID: 0x000000ab
      Bridge Member 1, copy 0 
        Flags: IRL Bport, IRL shg0 bound members: 9
      Bridge Member 1, copy 1 
        Flags: IRL Bport, IRL shg0 bound members: 9
      Bridge Member 2, copy 0 
        Flags: Active, IRL Bport, EVPN OLE, EVPN SHG Label, EVPN Label Hash,
               Remote Rack SHG2, Remote Rack SHG1, Remote Rack SHG0, Local Rack Table,
      Label: 0, LDI: 65535, LAG Hash: 0x 0, nrLDI Hash: 0x 0, rLDI Hash: 0x 0
      Bridge Member 2, copy 1 
        Flags: Active, IRL Bport, EVPN OLE, EVPN SHG Label, EVPN Label Hash,
               Remote Rack SHG2, Remote Rack SHG1, Remote Rack SHG0, Local Rack Table,
      Label: 0, LDI: 65535, LAG Hash: 0x 0, nrLDI Hash: 0x 0, rLDI Hash: 0x 0
    )");
}

TEST_F(BridgeHandler, PwOverBviMembersByBothCounts)
{
    const struct {
        std::uint16_t in_block;
        std::uint16_t of_np_0;
        unsigned printed;
    } cases[] = {{0, 2, 0}, {2, 0, 0}, {1, 2, 1}, {2, 1, 1}, {2, 2, 2}};
    set_flags(bridge.context.flags, {BridgeContext::next_hop_has_bvi});
    bridge.context.flags.to_host();
    for (const auto &c : cases) {
        BridgeFeatureBlock1Np np{};
        set(np.pw_over_bvi_members[2], c.of_np_0);
        set(counts.pw_over_bvi_members, c.in_block);
        ShowDataBuilder builder;
        builder.add(bridge).add(hal_np).add(BridgeFeatureBlock1{}).add(np).add(counts).add(domain);
        builder.add_zeros(std::size_t{c.printed} * 2 * sizeof(BridgeMemberRecord));
        const Shown result = show(2, builder.bytes());
        EXPECT_EQ(result.status, 0U);
        EXPECT_NE(result.text.find("\n    NHOP has BVI\n    PW BVI count: shg0: 0, shg1: 0, shg2: 0"),
                  std::string::npos);
        EXPECT_EQ(occurrences(result.text, "copy 1"), c.printed);
    }
}

TEST_F(BridgeHandler, NumbersOfNps)
{
    const struct {
        std::uint16_t np_count;
        const char *text;
    } cases[] = {{9, "Error: Number of NPs (9) returned more than supported(8)"},
                 {0x0103, "Error: Number of NPs (259) returned more than supported(8)"},
                 {0, "Error: Number of NPs (0) returned is invalid"}};
    for (const auto &c : cases) {
        set(bridge.np_count, c.np_count);
        EXPECT_EQ(show(1, bytes()), Shown{std::string("\n") + c.text});
        std::vector<std::uint8_t> data = bytes();
        EXPECT_EQ(shown([&] {
                      Output out;
                      return zel_l2fib_brg_print_handler(out, 0, 1, {data.data(), data.size()});
                  }),
                  Shown{std::string("\n  ") + c.text + (c.np_count > 8 ? ". Bridge." : "")});
    }
}

constexpr const char *failure =
    "\n  zel_l2fib_trident_print_internal_detail: print handler failed for objtype 11 : status ";

TEST_F(BridgeHandler, ShowDataThatEndsEarly)
{
    bridge.context.flags.word.bytes = {0, 0x02, 0, 0};             // PBB statistics: feature block 1
    bridge.context.features.features.word.bytes = {0, 0, 0x20, 0}; // broadcast storm control: feature block 2
    set_converted(hal_np.shg_members[0], 1);
    set(counts.members, 1);
    ShowDataBuilder builder;
    builder.add(bridge).add(hal_np).add(BridgeFeatureBlock1{}).add(BridgeFeatureBlock1Np{}).add(counts);
    builder.add(StormControlState{}).add(StormControlProfile{}).add(domain).add_zeros(2 * sizeof(BridgeMemberRecord));
    const std::vector<std::uint8_t> whole = builder.bytes();
    EXPECT_EQ(show(1, whole).status, 0U);

    // Where each piece ends, and the indentation of its report.
    std::size_t size = 0;
    for (const auto &[end, blanks] : std::initializer_list<std::pair<std::size_t, int>>{
             {930, 0}, {950, 0}, {1146, 2}, {1150, 2}, {1466, 2}, {1610, 2}, {1706, 2}}) {
        for (; size < end; ++size) {
            const Shown result = show(1, {whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)});
            std::string report(1, '\n');
            report.append(static_cast<std::size_t>(blanks), ' ');
            report += "data_size is " + std::to_string(size) + ", expecting at least " + std::to_string(end) + failure +
                      "0x46258800\n";
            ASSERT_EQ(result.status, L2FIB_SHOW_ERR_DATA);
            ASSERT_TRUE(result.text.ends_with(report)) << result.text;
        }
    }
    EXPECT_EQ(size, whole.size());
    EXPECT_EQ(shown([] { return zel_l2fib_trident_print_internal_detail(0, 11, 1, 1, 1, nullptr, 0); }),
              (Shown{std::string("\n  zel_l2fib_brg_print_handler: Null arguments rcvd") + failure + "0x46258e00\n",
                     L2FIB_SHOW_ERR_ARGS}));
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
