// What a request meets before a view prints its object.
#include "common/objtype.h"
#include "tests/support/golden.h"
#include "tests/support/ladder.h"
#include "tests/support/test_platform.h"
#include "zel_l2fib/show.h"

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

TEST_F(FrontDoor, UnsupportedCardsShowNothingElse)
{
    test_platform.card_type = 0x1e1004;
    const Shown unsupported{"\nUnsupported card type NONE: 0"};
    Wire bytes(200);
    EXPECT_EQ(print_internal(L2FIB_OBJTYPE_AC, L2FIB_VIEW_DETAIL, bytes), unsupported);
    EXPECT_EQ(shown([&] { return zel_l2fib_print_internal_private(2, 0, 1, 2, bytes.data(), 200); }), unsupported);
    EXPECT_EQ(shown([&] { return zel_l2fib_trident_print_internal(1, 2, 0, 1, 1, bytes.data(), 200); }), unsupported);
    EXPECT_EQ(shown([&] { return zel_l2fib_print_internal_inconsistent(2, 0, 1, 4, bytes.data(), 200); }),
              Shown{"Unsupported card type: NONE"});
}

/// A router whose answers change: only the first so many name a supported card.
static void support_card_for(int answers)
{
    test_platform.when_asked_for_card = [answers]() mutable { test_platform.card_type = answers-- > 0 ? 0x1e1000 : 0; };
}

TEST_F(FrontDoor, EachCheckAsksForTheCardOnce)
{
    const std::string unsupported = "\nUnsupported card type NONE: 0";
    const std::string front_doors_report = "Unsupported card type: NONE";
    Wire ac(400);
    ac[13] = 4; // deleted: the hardware shows a line, and nothing on it
    const auto text_with = [&](int answers, auto call) {
        support_card_for(answers);
        Wire bytes = ac;
        return printed([&] { call(bytes); });
    };
    const auto ends_with = [](const std::string &text, const std::string &end) { return text.ends_with(end); };

    const auto by_view = [](std::uint32_t view) {
        return [view](Wire &b) { zel_l2fib_print_internal(L2FIB_OBJTYPE_AC, 0, 1, view, b.data(), b.size()); };
    };
    EXPECT_EQ(text_with(0, by_view(1)), unsupported);
    EXPECT_EQ(text_with(1, by_view(1)), unsupported); // the view's own check
    EXPECT_TRUE(ends_with(text_with(2, by_view(1)), "SHG: None" + unsupported + "\n"));
    EXPECT_TRUE(ends_with(text_with(3, by_view(1)), "SHG: None\n  \n"));
    EXPECT_EQ(text_with(1, by_view(2)), unsupported);
    EXPECT_TRUE(ends_with(text_with(2, by_view(2)), "is pwhe              : 0\n" + unsupported));
    EXPECT_TRUE(ends_with(text_with(3, by_view(2)), "is pwhe              : 0\n"));
    ac = {5, 3, 0, 9};
    EXPECT_EQ(text_with(0, by_view(4)), unsupported);
    EXPECT_EQ(text_with(1, by_view(4)), front_doors_report);
    EXPECT_EQ(text_with(2, by_view(4)), "\n" + unsupported);
    EXPECT_EQ(text_with(3, by_view(4)), "\n    ERROR: Invalid TLV size received!\n");

    ac.resize(4536);
    const auto state_summary = [](Wire &b) { zel_l2fib_platform_summary_hw_print_internal(0, 0, b.data(), b.size()); };
    const auto statistics = [](Wire &b) { zel_l2fib_platform_msg_counter_hw_print_internal(0, 0, b.data(), b.size()); };
    EXPECT_TRUE(ends_with(text_with(0, state_summary), unsupported));
    EXPECT_FALSE(ends_with(text_with(1, state_summary), unsupported));
    EXPECT_TRUE(ends_with(text_with(0, statistics), unsupported));
    EXPECT_FALSE(ends_with(text_with(1, statistics), unsupported));
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

/// What a view says of each object type, on one line.
static std::string by_objtype(View view, std::uint8_t *data, std::uint64_t size)
{
    Ladder ladder;
    for (std::uint32_t objtype = 0; objtype <= L2FIB_OBJTYPE_MAX + 1; ++objtype) {
        const Shown result = shown([&] { return view(objtype, data, size); });
        std::string line = std::regex_replace(result.text, std::regex("\n"), "\\n");
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

TEST_F(FrontDoor, SlotsAreTheRouters)
{
    Wire bytes(2000);
    zel_l2fib_hal_print[1].object_print = nullptr;
    EXPECT_EQ(shown([&] { return zel_l2fib_print_internal_detail(6, 0, 1, 1, bytes.data(), bytes.size()); }),
              Shown{"\n"});
    const auto mac = [&] {
        return shown([&] { return zel_l2fib_print_internal_detail(14, 0, 1, 1, bytes.data(), bytes.size()); });
    };
    const std::string rp_part = mac().text;
    zel_l2fib_hal_print[1].object_print = [](std::uint32_t /*level*/, std::uint32_t objtype, std::uint32_t /*node*/,
                                             std::uint32_t /*direction*/, std::uint32_t /*view_flags*/,
                                             std::uint8_t * /*show_data*/, std::uint64_t size) {
        std::printf("own %u %lu", objtype, size);
        return UINT32_C(5);
    };
    ASSERT_GT(rp_part.size(), 1U);
    EXPECT_EQ(mac(), (Shown{rp_part.substr(0, rp_part.size() - 1) + "own 14 2000\n", 5}));
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
    print_internal(L2FIB_OBJTYPE_NHOP, L2FIB_VIEW_DETAIL, bytes);
    EXPECT_EQ(zel_l2fib_hal_print[1].object_print, zel_l2fib_trident_print_internal);
    EXPECT_EQ(zel_l2fib_hal_print[0].object_print, nullptr);
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
