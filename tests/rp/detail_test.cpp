// The RP's part of the detail view, beyond the flags and fields that tests/records_test.cpp has.
#include "examples/show_data_builder.h"
#include "rp/ac_context.h"
#include "rp/bridge_context.h"
#include "rp/bridge_port_context.h"
#include "rp/pw_context.h"
#include "tests/support/golden.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

/// The view with the hardware left out, as from a client that calls it directly.
template <class Parts>
static Shown rp_part(std::uint32_t objtype, std::uint32_t direction, const Parts &parts)
{
    zel_l2fib_hal_print[1].object_print = nullptr;
    const GuardedBytes data(ShowDataBuilder{}.add(parts).bytes());
    return shown([&] {
        return zel_l2fib_print_internal_detail(objtype, 0, direction, L2FIB_VIEW_DETAIL, data.data(), data.size());
    });
}

TEST(Detail, NumbersWithoutAName)
{
    Scenes scenes;
    AcShowData ac{};
    set(ac.context.to_compose().service, 0xffffffff);
    set(ac.context.to_compose().state, 5);
    scenes.add("AC", rp_part(L2FIB_OBJTYPE_AC, 0, ac));
    PwContext pw{};
    set(pw.service, 5);
    set(pw.state, 4);
    set(pw.bridge_id, 0xffffffff);
    scenes.add("PW", rp_part(L2FIB_OBJTYPE_MPLS, 3, pw));
    BridgePortContext port{};
    set_flags(port.flags, {BridgePortContext::p2mp_pw_enabled});
    set(port.p2mp_role, 5);
    scenes.add("bridge port", rp_part(L2FIB_OBJTYPE_BRIDGE_PORT, 1, port));
    expect_golden("rp-numbers-without-a-name.txt", scenes.text());
}

TEST(Detail, NotificationsHaveWallClockTimes)
{
    BridgePortContext port{};
    set(port.last_notification, 2'000'000'000);
    BridgeShowData bridge{};
    set(bridge.context.to_compose().last_notification, 2'000'000'000);
    EXPECT_EQ(rp_part(L2FIB_OBJTYPE_BRIDGE_PORT, 1, port).text.find("sent at: N/A"), std::string::npos);
    EXPECT_EQ(rp_part(L2FIB_OBJTYPE_BRIDGE, 1, bridge).text.find("sent at: N/A"), std::string::npos);
}

} // namespace l2fib
