// What a request meets before a view prints its object.
#include "tests/support/printed.h"
#include "tests/support/test_platform.h"
#include "zel_l2fib/show.h"

#include <cstdio>
#include <gtest/gtest.h>

namespace l2fib
{

using Bytes = std::vector<std::uint8_t>;

class FrontDoor : public testing::Test
{
protected:
    ~FrontDoor() override { test_platform = {}; }
};

static Shown print_internal(std::uint32_t objtype, std::uint32_t view_flags, const Bytes &bytes)
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
    Bytes bytes(200);
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
    Bytes ac(400);
    ac[13] = 4; // deleted: the hardware shows a line, and nothing on it
    const auto text_with = [&](int answers, auto call) {
        support_card_for(answers);
        Bytes bytes = ac;
        return printed([&] { call(bytes); });
    };
    const auto ends_with = [](const std::string &text, const std::string &end) { return text.ends_with(end); };

    const auto by_view = [](std::uint32_t view) {
        return [view](Bytes &b) { zel_l2fib_print_internal(L2FIB_OBJTYPE_AC, 0, 1, view, b.data(), b.size()); };
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
    const auto state_summary = [](Bytes &b) { zel_l2fib_platform_summary_hw_print_internal(0, 0, b.data(), b.size()); };
    const auto statistics = [](Bytes &b) {
        zel_l2fib_platform_msg_counter_hw_print_internal(0, 0, b.data(), b.size());
    };
    EXPECT_TRUE(ends_with(text_with(0, state_summary), unsupported));
    EXPECT_FALSE(ends_with(text_with(1, state_summary), unsupported));
    EXPECT_TRUE(ends_with(text_with(0, statistics), unsupported));
    EXPECT_FALSE(ends_with(text_with(1, statistics), unsupported));
}

TEST_F(FrontDoor, NullShowData)
{
    EXPECT_EQ(shown([] { return zel_l2fib_print_internal(2, 0, 1, 1, nullptr, 0); }),
              (Shown{"zel_l2fib_print_internal_detail: NULL show data objtype 2 action 99\n", L2FIB_SHOW_ERR_ARGS}));
    EXPECT_EQ(shown([] { return zel_l2fib_print_internal(11, 0, 1, 2, nullptr, 500); }),
              (Shown{"zel_l2fib_print_internal_private: NULL show data objtype 11 action 99\n", L2FIB_SHOW_ERR_ARGS}));
}

TEST_F(FrontDoor, ShowDataThatEndsInsideTheContext)
{
    Bytes vpls_ac(106);
    vpls_ac[1] = 3; // NPs
    vpls_ac[9] = 2; // VPLS
    Bytes next_hop(25880);
    next_hop[71] = 2; // paths
    const Bytes &ac = vpls_ac;
    const struct {
        std::uint32_t objtype;
        std::uint32_t view;
        Bytes bytes;
        const char *sizes;
    } cases[] = {
        {L2FIB_OBJTYPE_AC, L2FIB_VIEW_DETAIL, {}, "0, expecting at least 106"},
        {L2FIB_OBJTYPE_AC, L2FIB_VIEW_PRIVATE, Bytes(105), "105, expecting at least 106"},
        {L2FIB_OBJTYPE_AC, L2FIB_VIEW_PRIVATE, ac, "106, expecting at least 2754"},
        {L2FIB_OBJTYPE_MPLS, L2FIB_VIEW_DETAIL, Bytes(303), "303, expecting at least 304"},
        {L2FIB_OBJTYPE_BRIDGE, L2FIB_VIEW_PRIVATE, Bytes(929), "929, expecting at least 930"},
        {L2FIB_OBJTYPE_BRIDGE_PORT, L2FIB_VIEW_DETAIL, Bytes(2587), "2587, expecting at least 2588"},
        {L2FIB_OBJTYPE_BRIDGE_MAC, L2FIB_VIEW_DETAIL, Bytes(115), "115, expecting at least 116"},
        {L2FIB_OBJTYPE_NHOP, L2FIB_VIEW_PRIVATE, Bytes(25879), "25879, expecting at least 25880"},
        {L2FIB_OBJTYPE_NHOP, L2FIB_VIEW_PRIVATE, next_hop, "25880, expecting at least 25952"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(print_internal(c.objtype, c.view, c.bytes),
                  (Shown{std::string("\nzel_l2fib_print_internal: data_size is ") + c.sizes, L2FIB_SHOW_ERR_DATA}));
    }
}

TEST_F(FrontDoor, ContextsThatAViewDoesNotReadMayBeMissing)
{
    EXPECT_EQ(print_internal(L2FIB_OBJTYPE_NHOP, L2FIB_VIEW_DETAIL, Bytes(1)).status, 0U);
    EXPECT_EQ(print_internal(L2FIB_OBJTYPE_BRIDGE_PORT, L2FIB_VIEW_PRIVATE, Bytes(1)).status, 0U);
    EXPECT_EQ(print_internal(L2FIB_OBJTYPE_BRIDGE_MAC, L2FIB_VIEW_PRIVATE, Bytes(1)).status, 0U);
}

TEST_F(FrontDoor, ObjectsWithoutAView)
{
    const std::string detail = "zel_l2fib_print_internal_detail: Wrong L2FIB objtype 5 action 100";
    EXPECT_EQ(print_internal(L2FIB_OBJTYPE_VNI, L2FIB_VIEW_DETAIL, Bytes(8)), Shown{detail});
    EXPECT_EQ(print_internal(L2FIB_OBJTYPE_VNI, 0, Bytes(8)), Shown{detail});
    EXPECT_EQ(print_internal(L2FIB_OBJTYPE_MCAST_LEAF, L2FIB_VIEW_DETAIL, Bytes(8)), Shown{""});
    EXPECT_EQ(print_internal(L2FIB_OBJTYPE_NHOP, L2FIB_VIEW_DETAIL, Bytes(8)), Shown{"\n"});
    EXPECT_EQ(print_internal(L2FIB_OBJTYPE_VNI, 3, Bytes(8)),
              Shown{"\n  zel_l2fib_print_internal_private: Wrong L2FIB objtype 5 action 100"
                    "zel_l2fib_trident_print_internal_private: Wrong L2FIB objtype 5 action 100"});
    EXPECT_EQ(print_internal(L2FIB_OBJTYPE_MPLS, 6, Bytes(1)), Shown{"\n  Platform object MPLS not handled"});
    EXPECT_EQ(print_internal(40, 6, Bytes(1)), Shown{"\n  Platform object Invalid not handled"});
}

TEST_F(FrontDoor, HardwareViewsByFlags)
{
    Bytes bytes(8);
    const auto hardware = [&](std::uint32_t objtype, std::uint32_t view_flags) {
        return shown(
            [&] { return zel_l2fib_trident_print_internal(1, objtype, 0, 2, view_flags, bytes.data(), bytes.size()); });
    };
    EXPECT_EQ(hardware(15, 9), Shown{"\n  zel_l2fib_trident_print_internal_detail: Wrong L2FIB objtype 15 action 100"});
    EXPECT_EQ(hardware(15, 3), Shown{"zel_l2fib_trident_print_internal_private: Wrong L2FIB objtype 15 action 100"});
    EXPECT_EQ(hardware(15, 7), Shown{"\n  Hardware object MSTI MAIN PORT not handled"});
    EXPECT_EQ(hardware(15, 0), Shown{""});
    EXPECT_EQ(hardware(15, 8), Shown{""});
    EXPECT_EQ(hardware(L2FIB_OBJTYPE_AC, 2), Shown{""});
    EXPECT_EQ(hardware(L2FIB_OBJTYPE_BRIDGE_PORT, 1), Shown{""});
    EXPECT_EQ(shown([&] { return zel_l2fib_trident_print_internal_private(1, 15, 0, 2, 0, bytes.data(), 8); }),
              hardware(15, 3));
    EXPECT_EQ(shown([&] { return zel_l2fib_trident_print_internal_inconsistent(1, 2, 0, 2, 0, nullptr, 8); }),
              (Shown{"", L2FIB_SHOW_ERR_ARGS}));
    EXPECT_EQ(shown([&] { return zel_l2fib_trident_print_internal_inconsistent(1, 2, 0, 2, 0, nullptr, 0); }),
              Shown{""});
}

TEST_F(FrontDoor, SlotsAreTheRouters)
{
    Bytes bytes(2000);
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
    EXPECT_EQ(zel_l2fib_data_size(L2FIB_OBJTYPE_AC, 3), 164U);
    EXPECT_EQ(zel_l2fib_data_size(L2FIB_OBJTYPE_BRIDGE, 255), 6028U);
    EXPECT_EQ(zel_l2fib_data_size(L2FIB_OBJTYPE_MPLS, 9), 304U);
    EXPECT_EQ(zel_l2fib_data_size(29, 1), 0U);
    EXPECT_EQ(zel_l2fib_hal_brg_feature_data_size(1, 8), 176U);
    EXPECT_EQ(zel_l2fib_hal_brg_feature_data_size(2, 255), 75480U);
    EXPECT_EQ(zel_l2fib_hal_brg_feature_data_size(3, 8), 0U);
}

} // namespace l2fib
