// The RP's part of the detail view: every flag, and the values that have names.
#include "examples/show_data_builder.h"
#include "rp/ac_context.h"
#include "rp/bridge_context.h"
#include "rp/bridge_mac_context.h"
#include "rp/bridge_port_context.h"
#include "rp/pw_context.h"
#include "tests/support/printed.h"
#include "tests/support/test_platform.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

/// The view with the hardware left out, as from a client that calls it directly.
template <class ShowData>
static std::string rp_text(std::uint32_t objtype, std::uint32_t direction, const ShowData &show_data)
{
    zel_l2fib_hal_print[1].object_print = nullptr;
    const GuardedBytes data(ShowDataBuilder{}.add(show_data).bytes());
    return printed([&] { zel_l2fib_print_internal_detail(objtype, 0, direction, 1, data.data(), data.size()); });
}

TEST(Detail, AcWithEveryFlag)
{
    AcShowData data{};
    set(data.context.service, 0xffffffff);
    set(data.context.state, 5);
    set(data.context.flags.word, 0xffffffff);
    set(data.context.shg, 2);
    EXPECT_EQ(rp_text(L2FIB_OBJTYPE_AC, 0, data), R"(  Platform AC context:
  Egress AC: Invalid, State: Invalid
    Flags: Remote AC, Remote is Simple AC, Remote is PW, Remote is LAG, DHCP Snoop,
           DHCP Snoop Trusted, Unknown Unicast FB, MCast FB, Learn Limit - No Learn,
           Learn Limit - Drop, LAG has no local member, IGMP Snoop, MLD Snoop,
           IGMP Router Guard, MLD Router Guard, MAC Learn Disabled, Storm Control BCast,
           Storm Control MCast, Storm Control UCast, Port Level MAC Limit,
           Is AC VSP, PBB Core, XID Unbound, SPAN
  XID: 0x00000000, SHG: Enabled
)");
    // Fields 1, 9 and 26 to 31 are not listed.
    set(data.context.flags.word, 0x4040003f);
    EXPECT_NE(rp_text(L2FIB_OBJTYPE_AC, 1, data).find("\n    Flags: None\n"), std::string::npos);
}

TEST(Detail, PwWithEveryFlag)
{
    PwContext pw{};
    set(pw.service, 5);
    set(pw.bridge_id, 0xffffffff);
    set(pw.flags.word, 0xffffffff);
    EXPECT_EQ(rp_text(L2FIB_OBJTYPE_MPLS, 1, pw), R"(  Platform PW context:
  Ingress PW: IPV6_L2TPV3, State: Uninitialized
  XID: 0x00000000, bridge: -1, MAC limit: 0, disp_vc_label: 0, vc label: 0,
  nr_ldi_hash: 0x0, r_ldi_hash: 0x0, lag_hash: 0x0, SHG: None
    Flags: Control Word, Inband VCCV, Seq Num Chk, Seq Num Add, Unknown Unicast FB,
           Mcast FB, DHCP Snoop, DHCP Trusted, Learn Limit No Learn, Learn Limit Drop,
           MAC Learn Disable, Storm Control BCast, Storm Control MCast, Storm Control UCast,
           MAC Limit Port Level, SPAN, Flow Label imposition, vc label lb
)");
}

TEST(Detail, BridgeWithEveryFlag)
{
    BridgeShowData data{};
    set(data.context.flags.word, 0xffffffff);
    set(data.context.state, 4);
    const std::string text = rp_text(L2FIB_OBJTYPE_BRIDGE, 2, data);
    EXPECT_EQ(text, R"(  
  Platform Bridge context:
    Last notification sent at: N/A
    Egress Bridge Domain: 0, State: Deleted
    static MACs: 0, port level static MACs: 0, MAC limit: 0, current MAC limit: 0,
    MTU: 0, MAC limit action: 0
      Flags: Admin Down, Flood Disabled, Unknown Unicast, MAC Learn Disable,
             MAC Limit Exceeded, BVI Flood Chg, Learn Limit Nolearn, Learn Limit Drop,
             MAC Limit Changed
)");
}

TEST(Detail, BridgePortWithEveryFlag)
{
    BridgePortContext port{};
    set(port.flags.word, 0xffffffff);
    set(port.features.features.word, 0xffffffff);
    set(port.features.more.word, 0xffffffff);
    set(port.p2mp_role, 7);
    EXPECT_EQ(rp_text(L2FIB_OBJTYPE_BRIDGE_PORT, 1, port), R"(  Platform Bridge Port context:
  Last notification sent at: N/A
  Ingress State: Uninitialized
    Flags: admin-down, flood-disble, flood-unknown-unicast-disable, mac-learn-disable,
           mac-learn-disable-cfg, dhcp-snoop-enable, DHCP-trusted, igmp-snoop-enable,
           mac-sec-enable, mac-sec-log, mac-limit-reached, dai_enabled, dai-ipv4,
           dai-src-mac, dai-dst-mac, dai-log, ipsg-enabled, ipsg-log, mac-port-flush-disabled,
           evpn-egr-mc-blocked, bundle_port, MSTI enabled, MSTI learn-only,
           MSTI ingress blocked, MSTI egress blocked
    pi_xid: 0x00000000, lb_type: 0, mac_secure_action: 3, P2MP PW enabled,
    P2MP Role: invalid
)");
    const std::string bare = rp_text(L2FIB_OBJTYPE_BRIDGE_PORT, 1, BridgePortContext{});
    EXPECT_NE(bare.find("\n    Flags: None\n    pi_xid: 0x00000000\n"), std::string::npos);
}

TEST(Detail, MacWithEveryFlag)
{
    BridgeMacContext mac{};
    set(mac.flags.word, 0xffffffff);
    set(mac.xid, 0x12345678);
    EXPECT_EQ(rp_text(L2FIB_OBJTYPE_BRIDGE_MAC, 1, mac), R"(  Platform bridge MAC context:
  Ingress MAC (ver 0), Bridge id: 0, MAC: 0000.0000.0000, XID: 0x12345678,
  State: Uninitialized
    Flags: Alive Check, Global XID, PBB MAC Mapping, EVPN
)");
}

TEST(Detail, NotificationsHaveWallClockTimes)
{
    test_platform.monotonic_seconds = 1000; // up for less than the stamp says: any time will do
    BridgePortContext port{};
    set(port.last_notification, 2'000'000'000);
    BridgeShowData bridge{};
    set(bridge.context.last_notification, 2'000'000'000);
    EXPECT_EQ(rp_text(L2FIB_OBJTYPE_BRIDGE_PORT, 1, port).find("sent at: N/A"), std::string::npos);
    EXPECT_EQ(rp_text(L2FIB_OBJTYPE_BRIDGE, 1, bridge).find("sent at: N/A"), std::string::npos);
    test_platform = {};
}

} // namespace l2fib
