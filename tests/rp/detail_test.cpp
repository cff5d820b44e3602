// The RP's part of the detail view, beyond the flags and fields that tests/records_test.cpp has.
#include "examples/show_data_builder.h"
#include "rp/ac_context.h"
#include "rp/bridge_context.h"
#include "rp/bridge_port_context.h"
#include "rp/pw_context.h"
#include "tests/support/printed.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

/// The view with the hardware left out, as from a client that calls it directly.
template <class Context>
static std::string rp_text(std::uint32_t objtype, std::uint32_t direction, const Context &context)
{
    zel_l2fib_hal_print[1].object_print = nullptr;
    const GuardedBytes data(ShowDataBuilder{}.add(context).bytes());
    return printed([&] { zel_l2fib_print_internal_detail(objtype, 0, direction, 1, data.data(), data.size()); });
}

TEST(Detail, NumbersWithoutAName)
{
    AcShowData ac{};
    set(ac.context.service, 0xffffffff);
    set(ac.context.state, 5);
    EXPECT_EQ(rp_text(L2FIB_OBJTYPE_AC, 0, ac), R"(  Platform AC context:
  Egress AC: Invalid, State: Invalid
    Flags: None
  XID: 0x00000000, SHG: None
)");
    PwContext pw{};
    set(pw.service, 5);
    set(pw.state, 4);
    set(pw.bridge_id, 0xffffffff);
    EXPECT_EQ(rp_text(L2FIB_OBJTYPE_MPLS, 3, pw), R"(  Platform PW context:
  Egress PW: IPV6_L2TPV3, State: Deleted
  XID: 0x00000000, bridge: -1, MAC limit: 0, disp_vc_label: 0, vc label: 0,
  nr_ldi_hash: 0x0, r_ldi_hash: 0x0, lag_hash: 0x0, SHG: None
    Flags: None
)");
    BridgePortContext port{};
    set_flags(port.flags, {BridgePortContext::p2mp_pw_enabled});
    set(port.p2mp_role, 5);
    EXPECT_EQ(rp_text(L2FIB_OBJTYPE_BRIDGE_PORT, 1, port), R"(  Platform Bridge Port context:
  Last notification sent at: N/A
  Ingress State: Uninitialized
    Flags: None
    pi_xid: 0x00000000, P2MP PW enabled, P2MP Role: invalid
)");
}

TEST(Detail, NotificationsHaveWallClockTimes)
{
    BridgePortContext port{};
    set(port.last_notification, 2'000'000'000);
    BridgeShowData bridge{};
    set(bridge.context.last_notification, 2'000'000'000);
    EXPECT_EQ(rp_text(L2FIB_OBJTYPE_BRIDGE_PORT, 1, port).find("sent at: N/A"), std::string::npos);
    EXPECT_EQ(rp_text(L2FIB_OBJTYPE_BRIDGE, 1, bridge).find("sent at: N/A"), std::string::npos);
}

} // namespace l2fib
