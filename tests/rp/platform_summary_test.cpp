// The platform's summaries around their tables, which the samples show whole.
#include "examples/captures.h"
#include "examples/show_data_builder.h"
#include "rp/event_statistics.h"
#include "rp/state_summary.h"
#include "tests/support/golden.h"
#include "tests/support/test_platform.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

using Wire = std::vector<std::uint8_t>;
using Summary = std::uint32_t (*)(std::uint32_t node_id, std::uint32_t hw_arg, std::uint8_t *data, std::uint64_t size);
constexpr Summary state_summary = zel_l2fib_platform_summary_hw_print_internal;
constexpr Summary event_statistics = zel_l2fib_platform_msg_counter_hw_print_internal;

static Shown show(Summary summary, const Wire &bytes)
{
    const GuardedBytes data(bytes);
    return shown([&] { return summary(0, 0, data.data(), data.size()); });
}

class PlatformSummary : public testing::Test
{
protected:
    ~PlatformSummary() override { test_platform = {}; }
};

TEST_F(PlatformSummary, Screens)
{
    Scenes scenes;
    for (const Summary summary : {state_summary, event_statistics}) {
        scenes.add("nothing", shown([&] { return summary(0, 0, nullptr, 0); }));
        scenes.add("no show data", shown([&] { return summary(0, 0, nullptr, 600); }));
    }
    StateSummary summary{};
    set(summary.kinds[8].created, 0xffffffff);
    set(summary.kinds[8].bound, 12345);
    set(summary.kinds[8].unbound, 0x80000000);
    scenes.add("negative MACs", show(state_summary, ShowDataBuilder{}.add(summary).add_zeros(1).bytes()));
    EventCounts counts{};
    set(counts.kinds[17].modified, 0xfffffffe);
    scenes.add("negative L2TP sessions",
               show(event_statistics, ShowDataBuilder{}.add(counts).add(EventTimes{}).bytes()));
    expect_golden("platform-summaries.txt", scenes.text());
}

static const struct {
    Summary summary;
    Wire sample;
    const char *end; // of its screen
} samples[] = {
    {state_summary, make_state_summary(), "11\n\n"},
    {event_statistics, make_event_statistics(), "< 1 ms \n"},
};

TEST_F(PlatformSummary, UnsupportedCardsComeBehindTheTables)
{
    test_platform.card_type = 0;
    for (const auto &s : samples) {
        const Shown result = show(s.summary, s.sample);
        EXPECT_TRUE(result.text.ends_with(std::string(s.end) + "\nUnsupported card type NONE: 0")) << result;
        EXPECT_EQ(result.status, 0U);
    }
}

/// The table is refilled before the card is asked for: a platform layer that enters a printer of its own then has it
/// called.
TEST_F(PlatformSummary, TheHardwaresPartFollows)
{
    static Wire received;
    static std::uint32_t received_arg;
    const auto print = [](std::uint32_t hw_arg, std::uint8_t *data, std::uint64_t size) -> std::uint32_t {
        received.assign(data, data + size);
        received_arg = hw_arg;
        return 77;
    };
    const struct {
        Summary summary;
        std::size_t size;
        decltype(&zel_l2fib_hal_print_row::summary_print) slot;
    } cases[] = {
        {state_summary, 540, &zel_l2fib_hal_print_row::summary_print},
        {event_statistics, 4536, &zel_l2fib_hal_print_row::statistics_print},
    };
    for (const auto &c : cases) {
        Wire bytes(c.size + 3, 0);
        bytes[c.size] = 1;
        test_platform.when_asked_for_card = [&] { zel_l2fib_hal_print[1].*c.slot = print; };
        std::uint32_t status = 0;
        printed([&] { status = c.summary(0, 5, bytes.data(), bytes.size()); });
        EXPECT_EQ(status, 77U);
        EXPECT_EQ(received, (Wire{1, 0, 0}));
        EXPECT_EQ(received_arg, 5U);

        test_platform.when_asked_for_card = nullptr;
        printed([&] { status = c.summary(0, 5, bytes.data(), bytes.size()); });
        EXPECT_EQ(status, 0U);
        EXPECT_EQ(zel_l2fib_hal_print[1].object_print, zel_l2fib_trident_print_internal);
    }
}

} // namespace l2fib
