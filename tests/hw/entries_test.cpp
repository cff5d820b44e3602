// The entries that an NP holds, beyond the flags and fields that tests/records_test.cpp has.
#include "examples/show_data_builder.h"
#include "hw/uidb_entry.h"
#include "hw/xid_entry.h"
#include "tests/support/printed.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

static std::string xid_text(XidEntry entry)
{
    return printed([&] {
        Output out;
        EXPECT_EQ(zel_l2fib_print_xid_entry(out, 0, 0x12, &entry), 0U);
    });
}

TEST(XidEntry, VplsLineNamesWhatIsNotZero)
{
    XidEntry entry{};
    set(entry.type, 10);
    set_flags(entry.flags, {XidEntry::vpls, XidEntry::multicast_storm_control});
    EXPECT_EQ(xid_text(entry), R"(
Xconnect ID: 0x00000012
  Type: VNI
  Flags: Multicast storm control, VPLS
  Bridge Domain ID: 0
  Storm Control enabled for: Multicast
  Split Horizon Group: None)");

    set(entry.learn_count_limit, -2);
    set(entry.learn_count_pointer, 0xf);
    set(entry.msti, 3);
    EXPECT_NE(xid_text(entry).find(R"(
  Bridge Domain ID: 0, Learn Count Limit: -2, Learn Count Pointer: 0x00000f,
  msti: 3
)"),
              std::string::npos);
}

TEST(XidEntry, MissingEntryIsReportedByItsHandler)
{
    EXPECT_EQ(shown([] {
                  Output out;
                  const std::uint32_t status = zel_l2fib_print_xid_entry(out, 1, 0x12, nullptr);
                  report_xid_failure(out, 2, "the_handler", 0x12, status);
                  return status;
              }),
              (Shown{"\n  zel_l2fib_print_xid_entry: Failed with null args"
                     "\n    the_handler: Failed to print HW entry xid: 0x12 - status 0x46258e00",
                     L2FIB_SHOW_ERR_ARGS}));
}

static Shown uidb_shown(UidbEntry entry, std::uint32_t direction, std::uint32_t service = 2)
{
    return shown([&] {
        Output out;
        return zel_l2fib_print_uidb_entry(out, 0, direction, service, &entry);
    });
}

TEST(UidbEntry, Failures)
{
    UidbEntry unreadable{};
    set(unreadable.retrieval_status, 0x1234);
    const Shown reported{"\nERROR: Failed to retrieve UIDB: status 0x00001234", 0x1234};
    EXPECT_EQ(uidb_shown(unreadable, 1, 0), reported);
    EXPECT_EQ(uidb_shown(unreadable, 2, 1), reported);
    EXPECT_EQ(uidb_shown(unreadable, 2, 0), Shown{""});
    EXPECT_EQ(uidb_shown({}, 3), (Shown{"\nEgress uIDB: ", L2FIB_SHOW_ERR_DATA}));
    EXPECT_EQ(shown([] {
                  Output out;
                  return zel_l2fib_print_uidb_entry(out, 1, 1, 0, nullptr);
              }),
              (Shown{"\n  zel_l2fib_print_uidb_entry: Failed with null args", L2FIB_SHOW_ERR_ARGS}));
}

} // namespace l2fib
