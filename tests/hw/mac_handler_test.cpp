#include "hw/mac.h"
#include "tests/support/printed.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

static Shown show(const std::vector<std::uint8_t> &bytes)
{
    return shown_hardware(1, L2FIB_OBJTYPE_BRIDGE_MAC, 1, bytes);
}

TEST(MacHandler, ShowDataThatIsShortOrMissing)
{
    const std::string failure = "\n  zel_l2fib_trident_print_internal_detail: print handler failed for objtype 14 : ";
    EXPECT_EQ(
        show(std::vector<std::uint8_t>(171)),
        (Shown{"\n  data_size is 171, expecting at least 172" + failure + "status 0x46258800", L2FIB_SHOW_ERR_DATA}));
    EXPECT_EQ(shown([] { return zel_l2fib_trident_print_internal_detail(1, 14, 1, 1, 1, nullptr, 0); }),
              (Shown{"\n  zel_l2fib_mac_print_handler: Null arguments rcvd" + failure + "status 0x46258e00",
                     L2FIB_SHOW_ERR_ARGS}));
}

} // namespace l2fib
