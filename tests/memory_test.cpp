// Views that run out of memory.
#include "examples/captures.h"
#include "tests/support/golden.h"
#include "tests/support/ladder.h"
#include "tests/support/memory.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

TEST(Memory, RunsOut)
{
    const struct {
        const char *title;
        std::uint32_t objtype;
        std::vector<std::uint8_t> show_data;
    } cases[] = {
        {"VPLS PW", L2FIB_OBJTYPE_MPLS, make_vpls_pw_ingress()},
        {"bridge", L2FIB_OBJTYPE_BRIDGE, make_bridge_ingress()},
        {"VPLS AC", L2FIB_OBJTYPE_AC, make_vpls_ac_ingress()},
    };
    std::string text;
    for (const auto &c : cases) {
        const std::string screen = shown_detail(c.objtype, L2FIB_INGRESS, c.show_data).text;
        Ladder ladder;
        for (int allocation = 1; allocation <= 4; ++allocation) {
            const FailingAllocation failing(allocation);
            const Shown result = shown_detail(c.objtype, L2FIB_INGRESS, c.show_data);
            EXPECT_EQ(failing.not_released(), 0);
            ladder.add(static_cast<std::size_t>(allocation), rung(result, screen, 0));
        }
        text += std::string("== ") + c.title + ", failing at the n-th allocation\n" + ladder.text();
    }
    expect_golden("memory.txt", text);
}

} // namespace l2fib
