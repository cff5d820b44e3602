// The entries that an NP holds, beyond the flags and fields that tests/records_test.cpp has.
#include "examples/show_data_builder.h"
#include "hw/uidb_entry.h"
#include "hw/xid_entry.h"
#include "tests/support/golden.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

TEST(XidEntry, VplsLineNamesWhatIsNotZero)
{
    const auto show = [](const XidEntry &entry) {
        return Shown{printed([&] {
            Output out;
            print_xid_entry(out, 0, 0x12, entry);
        })};
    };
    XidEntry entry{};
    set_converted(entry.type, 10);
    set_converted(entry.flags, 1U << (31 - XidEntry::vpls) | 1U << (31 - XidEntry::multicast_storm_control));
    Scenes scenes;
    scenes.add("VPLS", show(entry));
    set_converted(entry.learn_count_limit, -2);
    set_converted(entry.learn_count_pointer, 0xf);
    set(entry.msti, 3);
    scenes.add("VPLS, with a limit", show(entry));
    expect_golden("xid-vpls.txt", scenes.text());
}

TEST(UidbEntry, ThatWasNotRead)
{
    const auto show = [](std::uint32_t direction, std::uint32_t service) {
        UidbEntry entry{};
        set(entry.retrieval_status, 0x1234);
        Received<UidbEntry> received = as_sent(entry);
        return printed([&] {
            Output out;
            show_uidb_entry(out, 0, direction, service, received);
        });
    };
    const std::string reported = "\nERROR: Failed to retrieve UIDB: status 0x00001234";
    EXPECT_EQ(show(L2FIB_INGRESS, 0), reported);
    EXPECT_EQ(show(L2FIB_EGRESS, 1), reported);
    EXPECT_EQ(show(L2FIB_EGRESS, 0), "");
}

} // namespace l2fib
