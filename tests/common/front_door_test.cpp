// What a request meets before a view prints its object.
#include "common/objtype.h"
#include "tests/support/golden.h"
#include "tests/support/ladder.h"
#include "tests/support/test_platform.h"
#include "zel_l2fib/show.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <gtest/gtest.h>
#include <iomanip>
#include <regex>
#include <sstream>

namespace l2fib
{

using Wire = std::vector<std::uint8_t>;

class FrontDoor : public testing::Test
{
protected:
    ~FrontDoor() override { test_platform = {}; }
};

static Shown print_internal(std::uint32_t objtype, std::uint32_t view_flags, const Wire &bytes)
{
    const GuardedBytes data(bytes);
    return shown([&] { return zel_l2fib_print_internal(objtype, 0, 1, view_flags, data.data(), data.size()); });
}

TEST_F(FrontDoor, CardFamily)
{
    const struct {
        std::uint32_t code;
        std::uint32_t row;
    } cases[] = {{0, 0},        {0x1e0fff, 0}, {0x1e1000, 1}, {0x1e1001, 1}, {0x1e1002, 1},
                 {0x1e1003, 1}, {0x1e1004, 0}, {0x1e1005, 1}, {0x1e1006, 0}};
    for (const auto &c : cases) {
        test_platform.card_type = c.code;
        EXPECT_EQ(zel_l2fib_get_cardtype(7), c.row) << std::hex << c.code;
    }
}

using View = std::uint32_t (*)(std::uint32_t objtype, std::uint8_t *data, std::uint64_t size);

template <std::uint32_t view_flags>
static std::uint32_t of_front_door(std::uint32_t objtype, std::uint8_t *data, std::uint64_t size)
{
    return zel_l2fib_print_internal(objtype, 0, L2FIB_INGRESS, view_flags, data, size);
}

template <decltype(zel_l2fib_trident_print_internal_detail) *view>
static std::uint32_t of_hardware(std::uint32_t objtype, std::uint8_t *data, std::uint64_t size)
{
    return view(1, objtype, 1, L2FIB_INGRESS, 0, data, size);
}

template <decltype(zel_l2fib_platform_summary_hw_print_internal) *summary>
static std::uint32_t of_summary(std::uint32_t /*objtype*/, std::uint8_t *data, std::uint64_t size)
{
    return summary(0, 0, data, size);
}

/// A router whose answers change: only the first so many name a supported card.
static void support_card_for(int answers)
{
    test_platform.when_asked_for_card = [answers]() mutable { test_platform.card_type = answers-- > 0 ? 0x1e1000 : 0; };
}

TEST_F(FrontDoor, EachCheckAsksForTheCardOnce)
{
    Wire ac(400);
    ac[13] = 4; // deleted: the hardware shows a line, and nothing on it
    const Wire report = {4, 3, 0, 5, 3, 0, 9};
    const struct {
        const char *title;
        Wire show_data;
        View show;
    } cases[] = {
        {"detail", ac, of_front_door<L2FIB_VIEW_DETAIL>},
        {"private", ac, of_front_door<L2FIB_VIEW_PRIVATE>},
        {"inconsistent", report, of_front_door<L2FIB_VIEW_INCONSISTENT>},
        {"state summary", Wire(541), of_summary<zel_l2fib_platform_summary_hw_print_internal>},
        {"event statistics", Wire(4536), of_summary<zel_l2fib_platform_msg_counter_hw_print_internal>},
    };
    std::string text;
    for (const auto &c : cases) {
        const auto show = [&](int answers) {
            support_card_for(answers);
            Wire bytes = c.show_data;
            return shown([&] { return c.show(L2FIB_OBJTYPE_AC, bytes.data(), bytes.size()); });
        };
        Ladder ladder;
        for (int answers = 0; answers <= 5; ++answers) {
            ladder.add(static_cast<std::size_t>(answers), rung(show(answers), show(9).text, 0));
        }
        text += std::string("== ") + c.title + ", a supported card for the first answers\n" + ladder.text();
    }
    expect_golden("card-checks.txt", text);
}

static std::string one_line(const std::string &text)
{
    return std::regex_replace(text, std::regex("\n"), "\\n");
}

/// What a view says of each object type, on one line.
static std::string by_objtype(View view, std::uint8_t *data, std::uint64_t size)
{
    Ladder ladder;
    for (std::uint32_t objtype = 0; objtype <= L2FIB_OBJTYPE_MAX + 1; ++objtype) {
        const Shown result = shown([&] { return view(objtype, data, size); });
        std::string line = one_line(result.text);
        line = std::regex_replace(line, std::regex("objtype " + std::to_string(objtype) + "\\b"), "objtype TYPE");
        line = std::regex_replace(line, std::regex(std::string("object ") + objtype_name(objtype).chars + " not"),
                                  "object NAME not");
        std::ostringstream said;
        said << "0x" << std::hex << std::setfill('0') << std::setw(8) << result.status << "  \"" << line << '"';
        ladder.add(objtype, said.str());
    }
    return ladder.text();
}

TEST_F(FrontDoor, ObjectTypes)
{
    static constexpr struct {
        const char *title;
        View view;
    } views[] = {
        {"detail", of_front_door<L2FIB_VIEW_DETAIL>},
        {"private", of_front_door<L2FIB_VIEW_PRIVATE>},
        {"inconsistent", of_front_door<L2FIB_VIEW_INCONSISTENT>},
        {"hardware detail", of_hardware<zel_l2fib_trident_print_internal_detail>},
        {"hardware private", of_hardware<zel_l2fib_trident_print_internal_private>},
        {"hardware inconsistent", of_hardware<zel_l2fib_trident_print_internal_inconsistent>},
    };
    Ladder names;
    for (std::uint32_t objtype = 0; objtype <= L2FIB_OBJTYPE_MAX + 1; ++objtype) {
        names.add(objtype, objtype_name(objtype).chars);
    }
    std::string text = "== names\n" + names.text();
    for (const auto &[title, view] : views) {
        const GuardedBytes data(Wire(8));
        text += std::string("== ") + title + ", 8 bytes\n" + by_objtype(view, data.data(), data.size());
        text += std::string("== ") + title + ", null and size 8\n" + by_objtype(view, nullptr, 8);
        text += std::string("== ") + title + ", null and size 0\n" + by_objtype(view, nullptr, 0);
    }
    expect_golden("object-types.txt", text);
}

/// Of several flags the strongest selects the view.
TEST_F(FrontDoor, ViewFlags)
{
    Wire bytes(8);
    Scenes scenes;
    for (std::uint32_t flags = 0; flags <= 9; ++flags) {
        const std::string title = "flags " + std::to_string(flags);
        scenes.add(title, print_internal(L2FIB_OBJTYPE_VNI, flags, bytes));
        scenes.add(title + ", hardware", shown([&] {
                       return zel_l2fib_trident_print_internal(1, 15, 0, 2, flags, bytes.data(), bytes.size());
                   }));
    }
    expect_golden("view-flags.txt", scenes.text());
}

/// A printer of the router's own in the print table, which says what it is handed.
static std::uint32_t own_printer(std::uint32_t level, std::uint32_t objtype, std::uint32_t node,
                                 std::uint32_t direction, std::uint32_t view_flags, std::uint8_t * /*show_data*/,
                                 std::uint64_t size)
{
    std::printf("own printer: level %u, %s type, direction %u, flags %u, size %" PRIu64, level,
                objtype == node ? "its" : "another", direction, view_flags, size);
    return 5;
}

/// The last line of a view whose hardware's part is the router's own.
template <decltype(zel_l2fib_print_internal_detail) *view>
static std::string handed_over()
{
    Ladder ladder;
    for (std::uint32_t objtype = 0; objtype <= L2FIB_OBJTYPE_MAX + 1; ++objtype) {
        zel_l2fib_hal_print[1].object_print = own_printer;
        Wire bytes(30000);
        bytes[0] = 5; // the end of a report
        bytes[1] = 3;
        const Shown result = shown([&] { return view(objtype, objtype, 3, 9, bytes.data(), bytes.size()); });
        const std::string said = result.text.substr(std::min(result.text.size(), result.text.find("own printer")));
        ladder.add(objtype, "status " + std::to_string(result.status) + "  \"" + one_line(said) + '"');
    }
    return ladder.text();
}

TEST_F(FrontDoor, SlotsAreTheRouters)
{
    expect_golden("hand-over.txt", "== detail\n" + handed_over<zel_l2fib_print_internal_detail>() + "== private\n" +
                                       handed_over<zel_l2fib_print_internal_private>() + "== inconsistent\n" +
                                       handed_over<zel_l2fib_print_internal_inconsistent>());

    Wire bytes(2000);
    const auto mac = [&] {
        return shown([&] { return zel_l2fib_print_internal_detail(14, 0, 1, 1, bytes.data(), bytes.size()); });
    };
    zel_l2fib_hal_print[1].object_print = nullptr;
    const std::string rp_part = mac().text;
    zel_l2fib_hal_print[1].object_print = [](std::uint32_t /*level*/, std::uint32_t /*objtype*/, std::uint32_t node,
                                             std::uint32_t direction, std::uint32_t view_flags, std::uint8_t *show_data,
                                             std::uint64_t size) {
        std::printf("before");
        const std::uint32_t status = zel_l2fib_print_internal(5, node, direction, view_flags, show_data, size);
        std::printf("after");
        return status;
    };
    EXPECT_EQ(mac(), Shown{rp_part.substr(0, rp_part.size() - 1) + "beforezel_l2fib_print_internal_detail: "
                                                                   "Wrong L2FIB objtype 5 action 100after\n"});
    EXPECT_EQ(zel_l2fib_hal_print[1].object_print, zel_l2fib_trident_print_internal); // refilled by the call within
    EXPECT_EQ(zel_l2fib_hal_print[0].object_print, nullptr);
}

/// The table is refilled before the card is asked for: a platform layer that enters a printer of its own then has it
/// called.
TEST_F(FrontDoor, TheHardwaresSummaryFollowsTheRps)
{
    static Wire received;
    static std::uint32_t received_arg;
    const auto print = [](std::uint32_t hw_arg, std::uint8_t *data, std::uint64_t size) -> std::uint32_t {
        received.assign(data, data + size);
        received_arg = hw_arg;
        return 77;
    };
    const struct {
        decltype(&zel_l2fib_platform_summary_hw_print_internal) summary;
        std::size_t size;
        decltype(&zel_l2fib_hal_print_row::summary_print) slot;
    } cases[] = {
        {zel_l2fib_platform_summary_hw_print_internal, 540, &zel_l2fib_hal_print_row::summary_print},
        {zel_l2fib_platform_msg_counter_hw_print_internal, 4536, &zel_l2fib_hal_print_row::statistics_print},
    };
    Scenes scenes;
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
        EXPECT_EQ(shown([&] { return c.summary(0, 0, nullptr, 0); }), Shown{""});
        scenes.add("no show data", shown([&] { return c.summary(0, 0, nullptr, 600); }));
    }
    expect_golden("null-summaries.txt", scenes.text());
}

TEST_F(FrontDoor, Sizes)
{
    Ladder sizes;
    for (std::uint32_t objtype = 0; objtype <= L2FIB_OBJTYPE_MAX + 1; ++objtype) {
        const std::uint64_t fixed = zel_l2fib_data_size(objtype, 0);
        sizes.add(objtype, std::to_string(fixed) + " bytes, and " +
                               std::to_string(zel_l2fib_data_size(objtype, 255) - fixed) + " for 255 NPs");
    }
    expect_golden("data-sizes.txt", sizes.text());
    EXPECT_EQ(zel_l2fib_hal_brg_feature_data_size(1, 8), 176U);
    EXPECT_EQ(zel_l2fib_hal_brg_feature_data_size(2, 255), 75480U);
    EXPECT_EQ(zel_l2fib_hal_brg_feature_data_size(3, 8), 0U);
}

} // namespace l2fib
