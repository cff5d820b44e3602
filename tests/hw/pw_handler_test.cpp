// Which PWs are shown, their layer-3 paths, and what is said when the hardware's part does not hold them.
#include "examples/show_data_builder.h"
#include "hw/pw.h"
#include "rp/names.h"
#include "tests/support/memory.h"
#include "tests/support/printed.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

constexpr const char *failure =
    "\n  zel_l2fib_trident_print_internal_detail: print handler failed for objtype 3 : status ";

class PwHandler : public testing::Test
{
protected:
    PwHandler()
    {
        set_converted(pw.context.service, service_vpls);
        set_converted(pw.context.state, state_bound);
        set_converted(pw.context.xid, 0x77);
        set(pw.np_count, 1);
    }

    /// The hardware's view of the PW, at level 1, with what follows its NP count.
    [[nodiscard]] Shown show(std::uint32_t direction, const std::vector<std::uint8_t> &hardware) const
    {
        std::vector<std::uint8_t> bytes = ShowDataBuilder{}.add(pw).bytes();
        bytes.insert(bytes.end(), hardware.begin(), hardware.end());
        return shown_hardware(1, L2FIB_OBJTYPE_MPLS, direction, bytes);
    }

    /// The ingress part of a VPLS PW with one NP.
    [[nodiscard]] std::vector<std::uint8_t> ingress() const
    {
        PwIngressBlock block{};
        block.paths = paths;
        return ShowDataBuilder{}.add(XidEntry{}).add(block).add(StormControlProfile{}).bytes();
    }

    PwShowData pw{};
    Layer3Paths paths{};
};

constexpr const char *layer_line = "\n  Port Learn Key: 0\n  Trident Layer Flags: None";
constexpr const char *np_0 = R"(
  NP0
    Xconnect ID: 0x00000077
      Type: Unknown
      Flags: None
      Split Horizon Group: None)";

TEST_F(PwHandler, Layer3Paths)
{
    constexpr std::uint8_t lag = 0x80;
    constexpr std::uint8_t valid = 0x40;
    const struct {
        std::uint8_t state;
        std::uint8_t primary;
        std::uint8_t backup;
        const char *lines;
    } cases[] = {
        {0xc0, valid, valid, "\n  Primary L3 path: Unresolved"},
        {0x00, lag, 0, "\n  Primary L3 path: ifhandle invalid\n  Backup L3 path: Not set"},
        {0x40, 0, lag, "\n  Primary L3 path: ifhandle invalid\n  Backup L3 path: ifhandle invalid"},
        {0x40, lag | valid, 0x3f | valid,
         "\n  Primary L3 path: LAG, ifhandle: 0x0000000a, sfp_or_lagid: 0x000b"
         "\n  Backup L3 path: ifhandle: 0x0000000c, sfp_or_lagid: 0x000d"},
    };
    set(paths.primary.ifhandle, 0xa);
    set(paths.primary.sfp_or_lagid, 0xb);
    set(paths.backup.ifhandle, 0xc);
    set(paths.backup.sfp_or_lagid, 0xd);
    for (const auto &c : cases) {
        set(paths.state.flags.word, std::uint32_t{c.state} << 24);
        set(paths.primary.flags.word, c.primary);
        set(paths.backup.flags.word, c.backup);
        EXPECT_EQ(show(1, ingress()),
                  Shown{layer_line + std::string("\n  slot mask[R0]: 0x0, slot mask[R1]: 0x0, NP flood mask: 0x0000") +
                        c.lines + np_0});
    }
}

TEST_F(PwHandler, IngressPartIsLeftOutWhereItIsNotWholeOrNotAskedFor)
{
    const Shown without{layer_line + std::string(np_0)};
    std::vector<std::uint8_t> hardware = ingress();
    EXPECT_EQ(show(2, hardware), without);
    hardware.pop_back();
    EXPECT_EQ(show(1, hardware), without);
}

TEST_F(PwHandler, IngressPartStaysAsReceived)
{
    std::vector<std::uint8_t> bytes = ShowDataBuilder{}.add(pw).bytes();
    PwIngressBlock block{};
    std::memset(static_cast<void *>(&block), 0x5a, sizeof block);
    const std::vector<std::uint8_t> tail = ShowDataBuilder{}.add(block).add_zeros(sizeof(StormControlProfile)).bytes();
    bytes.resize(bytes.size() + sizeof(XidEntry));
    bytes.insert(bytes.end(), tail.begin(), tail.end());
    const GuardedBytes data(bytes);
    printed([&] { zel_l2fib_trident_print_internal_detail(1, L2FIB_OBJTYPE_MPLS, 1, 1, 1, data.data(), data.size()); });
    EXPECT_TRUE(std::equal(tail.begin(), tail.end(), data.data() + data.size() - tail.size()));
}

TEST_F(PwHandler, NumbersOfNps)
{
    const std::string too_many = "Error: Number of NPs (9) returned more than supported(8)";
    const std::string invalid = "Error: Number of NPs (0) returned is invalid";
    set_converted(pw.context.layer_flags.word, 0x80);
    const std::string invalid_layer = "\n  Port Learn Key: 0\n  Trident Layer Flags: invalid";
    set(pw.np_count, 9);
    EXPECT_EQ(show(1, {}), Shown{invalid_layer + too_many});
    set(pw.np_count, 0);
    EXPECT_EQ(show(1, {}), Shown{invalid_layer + invalid});
    set_converted(pw.context.service, service_mtun);
    EXPECT_EQ(show(1, {}), Shown{"\n  " + invalid});
    set(pw.np_count, 9);
    EXPECT_EQ(show(1, {}), Shown{"\n  " + too_many});
}

TEST_F(PwHandler, PointToPointNamesTheNpsOfItsRecords)
{
    set_converted(pw.context.service, service_mtun);
    set(pw.np_count, 2);
    PwNpRecord first{};
    PwNpRecord second{};
    set(first.np, 5);
    set(second.np, 7);
    const std::string text = show(2, ShowDataBuilder{}.add(first).add(second).bytes()).text;
    EXPECT_EQ(text.find("\n  NP5\n    Xconnect ID: 0x00000077\n"), 0U);
    EXPECT_NE(text.find("\n  NP7\n    Xconnect ID: 0x00000077\n"), std::string::npos);
}

TEST_F(PwHandler, GatesAndFailures)
{
    std::vector<std::uint8_t> context = ShowDataBuilder{}.add(pw.context).bytes();
    const std::string data_failure = std::string(failure) + "0x46258800";
    const Shown failed{data_failure, L2FIB_SHOW_ERR_DATA};
    EXPECT_EQ(shown_hardware(1, L2FIB_OBJTYPE_MPLS, 1, {context.begin(), context.end() - 1}), failed);
    EXPECT_EQ(shown_hardware(1, L2FIB_OBJTYPE_MPLS, 1, context),
              (Shown{std::string(layer_line) + "\n  data_size is 304, expecting at least 308" + data_failure,
                     L2FIB_SHOW_ERR_DATA}));
    EXPECT_EQ(show(2, std::vector<std::uint8_t>(187)),
              (Shown{std::string(layer_line) + "\n  data_size is 495, expecting at least 496" + data_failure,
                     L2FIB_SHOW_ERR_DATA}));

    set_converted(pw.context.service, service_mtun);
    EXPECT_EQ(show(2, std::vector<std::uint8_t>(191)),
              (Shown{"\n  data_size is 499, expecting at least 500" + data_failure, L2FIB_SHOW_ERR_DATA}));
    set_converted(pw.context.service, service_local_switch);
    EXPECT_EQ(show(1, ingress()), failed);
    set_converted(pw.context.state, state_unbound);
    EXPECT_EQ(show(1, ingress()), Shown{""});

    EXPECT_EQ(shown([] { return zel_l2fib_trident_print_internal_detail(1, 3, 1, 1, 1, nullptr, 9); }),
              (Shown{std::string("\n  zel_l2fib_pw_print_handler: Null arguments rcvd") + failure + "0x46258e00",
                     L2FIB_SHOW_ERR_ARGS}));
}

TEST_F(PwHandler, MemoryRunsOut)
{
    const Shown expected{std::string(layer_line) + failure + "0xc6258200", L2FIB_SHOW_ERR_NOMEM};
    for (const int allocation : {1, 2}) {
        const FailingAllocation failing(allocation);
        EXPECT_EQ(show(1, ingress()), expected);
        EXPECT_EQ(failing.not_released(), 0);
    }
    const FailingAllocation none(3);
    EXPECT_EQ(show(1, ingress()).status, 0U);
    EXPECT_EQ(none.not_released(), 0);
}

} // namespace l2fib
