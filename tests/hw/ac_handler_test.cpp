// Which ACs and which of their NPs are shown, and what is said when the hardware's part does not hold them.
#include "examples/show_data_builder.h"
#include "hw/plain_ac.h"
#include "hw/uidb_entry.h"
#include "hw/vpls_ac.h"
#include "hw/xid_entry.h"
#include "rp/names.h"
#include "tests/support/printed.h"
#include "tests/support/test_platform.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>
#include <regex>
#include <sstream>

namespace l2fib
{

constexpr std::uint32_t all_nps = 0xffffffff;

class AcHandler : public testing::Test
{
protected:
    AcHandler()
    {
        set(ac.np_count, 1);
        set_converted(ac.context.service, service_vpls);
        set_converted(ac.context.state, state_bound);
        set_converted(ac.context.xid, 0x77);
        set_converted(ac.context.requested_np, all_nps);
    }
    ~AcHandler() override { test_platform = {}; }

    /// The hardware's view of the AC, at level 1, with this hardware part.
    [[nodiscard]] Shown show(std::uint32_t direction, const ShowDataBuilder &hardware) const
    {
        ShowDataBuilder builder;
        builder.add(ac).add_zeros(np_entry_size * static_cast<std::uint8_t>(ac.np_count.from_wire()));
        std::vector<std::uint8_t> bytes = builder.bytes();
        bytes.insert(bytes.end(), hardware.bytes().begin(), hardware.bytes().end());
        return shown_hardware(1, L2FIB_OBJTYPE_AC, direction, bytes);
    }

    AcShowData ac{};
};

static std::string failure(const char *service, const char *status)
{
    return std::string("\n  zel_l2fib_trident_print_internal_detail: print handler failed for service ") + service +
           " objtype 2 : status " + status;
}

static ShowDataBuilder egress(std::uint32_t np_count, unsigned records, const VplsNpRecord &record = {})
{
    VplsEgressBlock block{};
    set(block.np_count, np_count);
    ShowDataBuilder builder;
    builder.add(block);
    for (unsigned i = 0; i < records; ++i) {
        builder.add(record);
    }
    return builder;
}

static ShowDataBuilder ingress(std::uint32_t np_count, unsigned records, VplsIngressBlock block = {},
                               const VplsIngressNpRecord &record = {})
{
    set(block.np_count, np_count);
    ShowDataBuilder builder;
    builder.add(block);
    for (unsigned i = 0; i < records; ++i) {
        builder.add(record);
    }
    return builder.add(VplsIngressTrailer{});
}

/// The lines that name an NP or reject it.
static std::string np_lines(const std::string &text)
{
    std::istringstream lines(text);
    std::string found;
    for (std::string line; std::getline(lines, line);) {
        if (std::regex_match(line, std::regex(" *(NP[0-9]+|Invalid NP ID)"))) {
            found += line + "\n";
        }
    }
    return found;
}

TEST_F(AcHandler, StatesThatAreInHardware)
{
    const std::string shown_text = "\n  \n  Error: Number of NPs (0) returned is invalid";
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
        {state_bound, 1U << AcContext::remote_ac, 0, 0, false},
        {state_bound, 1U << AcContext::no_lag_local_members, 0, 0, false},
        {state_bound, 1U << AcContext::is_lag, 0, 0, true},
    };
    for (const auto &c : cases) {
        set_converted(ac.context.state, c.state);
        set_converted(ac.context.flags.word, c.flags);
        test_platform.ifhandle_status = c.ifhandle_status;
        test_platform.ifhandle_virtual = c.is_virtual;
        EXPECT_EQ(show(2, egress(0, 0)), Shown{c.is_shown ? shown_text : "\n  "}) << c.state << ' ' << c.flags;
    }
}

TEST_F(AcHandler, NpsOfAVplsAc)
{
    const std::string too_many = "\n  \n  Error: Number of NPs (9) returned more than supported(8)";
    EXPECT_EQ(show(1, ingress(9, 0)), Shown{too_many});
    EXPECT_EQ(show(2, egress(9, 0)), Shown{too_many});

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
        set_converted(ac.context.requested_np, c.requested);
        // One record more than is declared: it belongs to no NP.
        EXPECT_EQ(np_lines(show(1, ingress(c.np_count, c.np_count + 1)).text), c.lines);
        EXPECT_EQ(np_lines(show(2, egress(c.np_count, c.np_count + 1)).text), c.lines);
    }
}

TEST_F(AcHandler, StormControlKnowsEightNps)
{
    set_converted(ac.context.requested_np, 8);
    VplsIngressBlock block{};
    set_flags(block.port.features.features, {FeatureFlags::storm_control_multicast});
    EXPECT_EQ(np_lines(show(1, ingress(1, 1, block)).text), "  NP8\n    Invalid NP ID\n");
}

TEST_F(AcHandler, StormControlConfiguration)
{
    VplsIngressBlock block{};
    set_flags(block.port.features.features, {FeatureFlags::storm_control_multicast});
    set(block.port.multicast_rate, 500);
    set_converted(block.port.storm_control_unit, 0xff);
    StormControlState &state = block.port.storm_control[0];
    set_converted(state.traffic[0].status, 5);
    set_converted(state.traffic[1].status, 3);
    set_converted(state.traffic[1].profile.word, 0x01234567);
    set_converted(state.traffic[1].token_bucket_id, 0xabc);
    set_converted(state.traffic[2].status, 9);
    VplsIngressNpRecord record{};
    set(record.storm_control.rate[1], -500);
    set(record.storm_control.profile_id[1], 0xffff);

    const std::string text = show(1, ingress(1, 1, block, record)).text;
    const std::string expected = R"(
    Storm Control Configuration: Broadcast: Disabled, Multicast: 500 kbps, Unknown Unicast: Disabled
     Traffic Type  |   Status    |kbps    |Profile Index|Token Bucket ID|Profile ID|NP
    --------------------------------------------------------------------------------
    Broadcast      |Config Failed|  ------|-------------|---------------|----------|0 
    Multicast      |Config       |-500    |74565        |0xabc          |65535     |0 
    Unknown Unicast|Invalid      |  ------|-------------|---------------|----------|0 )";
    EXPECT_EQ(text.substr(text.find("\n    Storm")), expected);
}

TEST_F(AcHandler, VplsBlocksThatEndEarly)
{
    ShowDataBuilder three_bytes;
    three_bytes.add_zeros(3);
    const struct {
        std::uint32_t direction;
        ShowDataBuilder hardware;
        const char *sizes;
    } cases[] = {
        {1, three_bytes, "3, expecting at least 4"},
        {2, three_bytes, "3, expecting at least 4"},
        {2, egress(2, 1), "436, expecting at least 868"},
        {1, ingress(1, 0), "2600, expecting at least 3052"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(show(c.direction, c.hardware),
                  (Shown{std::string("\n  \n  data_size is ") + c.sizes + failure("VPLS", "0x46258800"),
                         L2FIB_SHOW_ERR_DATA}));
    }
    EXPECT_EQ(shown([&] {
                  Output out;
                  return print_vpls_ac(out, 1, 1, ac.context, ShowData{});
              }),
              (Shown{"\n  NULL data pointer", L2FIB_SHOW_ERR_DATA}));
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
    PlainAc() { set_converted(ac.context.service, service_local_switch); }

    static ShowDataBuilder entries(unsigned count)
    {
        ShowDataBuilder builder;
        builder.add(PlainAcBlock{});
        for (unsigned i = 0; i < count; ++i) {
            builder.add(XidEntry{});
        }
        return builder;
    }
};

TEST_F(PlainAc, EgressIndentsEachNpDeeper)
{
    set(ac.np_count, 3);
    EXPECT_EQ(show(2, entries(3)), Shown{R"(
  
  NP0
    Xconnect ID: 0x00000077
      Type: Unknown
      Flags: None
      Split Horizon Group: None
    NP1
      Xconnect ID: 0x00000077
        Type: Unknown
        Flags: None
        Split Horizon Group: None
      NP2
        Xconnect ID: 0x00000077
          Type: Unknown
          Flags: None
          Split Horizon Group: None)"});
}

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
            set_converted(ac.context.requested_np, c.requested);
            set(ac.np_count, c.np_count);
            const Shown result = show(direction, entries(c.entries));
            EXPECT_EQ(occurrences(result.text, "Xconnect ID"), c.printed);
            EXPECT_EQ(result.status, c.complete ? 0 : L2FIB_SHOW_ERR_DATA);
        }
    }
}

TEST_F(PlainAc, FailuresThatTheRouterHasNoTextFor)
{
    test_platform.knows_statuses = false;
    const std::string failed = "print handler failed for ";
    const std::string text = show(3, entries(1)).text;
    EXPECT_TRUE(text.ends_with(failed + "service Local Switch objtype 2 : (null)")) << text;
    EXPECT_TRUE(shown_hardware(1, L2FIB_OBJTYPE_MPLS, 1, {}).text.ends_with(failed + "objtype 3 : (null)"));

    UidbEntry entry{};
    set(entry.retrieval_status, 9);
    EXPECT_EQ(shown([&] {
                  Output out;
                  return zel_l2fib_print_uidb_entry(out, 0, L2FIB_INGRESS, 0, &entry);
              }),
              (Shown{"\nERROR: Failed to retrieve UIDB: (null)", 9}));
    EXPECT_EQ(shown([&] {
                  Output out;
                  report_xid_failure(out, 0, "handler", 5, 9);
                  return 0U;
              }),
              Shown{"\nhandler: Failed to print HW entry xid: 0x5 - (null)"});
}

TEST_F(PlainAc, Failures)
{
    EXPECT_EQ(show(3, entries(1)), (Shown{"\n  " + failure("Local Switch", "0x46258800"), L2FIB_SHOW_ERR_DATA}));

    std::vector<std::uint8_t> bytes(10);
    bytes[6] = service_vpls;
    EXPECT_EQ(shown_hardware(1, L2FIB_OBJTYPE_AC, 1, bytes),
              (Shown{"\n  " + failure("VPLS", "0x46258800"), L2FIB_SHOW_ERR_DATA}));
    bytes.pop_back();
    EXPECT_EQ(shown_hardware(1, L2FIB_OBJTYPE_AC, 1, bytes),
              (Shown{"\n  " + failure("Invalid", "0x46258800"), L2FIB_SHOW_ERR_DATA}));
    EXPECT_EQ(shown([] { return zel_l2fib_trident_print_internal_detail(1, L2FIB_OBJTYPE_AC, 1, 1, 1, nullptr, 9); }),
              (Shown{"\n  \n  zel_l2fib_ac_print_handler: Null arguments rcvd" + failure("Invalid", "0x46258e00"),
                     L2FIB_SHOW_ERR_ARGS}));
}

} // namespace l2fib
