#include "common/formatters.h"
#include "common/show_data.h"
#include "rp/bridge_context.h"
#include "rp/detail.h"
#include "rp/names.h"

namespace l2fib
{

static constexpr FlagTable bridge_flags{{
    {BridgeContext::admin_down, "Admin Down"},
    {BridgeContext::flood_disabled, "Flood Disabled"},
    {BridgeContext::unknown_unicast, "Unknown Unicast"},
    {BridgeContext::mac_learn_disable, "MAC Learn Disable"},
    {BridgeContext::mac_limit_exceeded, "MAC Limit Exceeded"},
    {BridgeContext::bvi_flood_change, "BVI Flood Chg"},
    {BridgeContext::learn_limit_no_learn, "Learn Limit Nolearn"},
    {BridgeContext::learn_limit_drop, "Learn Limit Drop"},
    {BridgeContext::mac_limit_changed, "MAC Limit Changed"},
}};

static void print_bridge(Output &out, std::uint32_t direction, std::uint8_t *show_data)
{
    const BridgeContext &bridge = ShowData::unchecked<BridgeShowData>(show_data).context.to_host();

    out.first_line(1, ""); // blank but for its indentation
    out.line(1, "Platform Bridge context:");
    out.line(2, "Last notification sent at: %s", timestamp_text(bridge.last_notification));

    List summary{out, 2};
    print_direction(summary, direction);
    summary.item("Bridge Domain: %d", bridge.bridge_id);
    summary.item("State: %s", state_name(bridge.state));

    List limits{out, 2};
    limits.item("static MACs: %d", bridge.static_macs);
    limits.item("port level static MACs: %d", bridge.port_level_static_macs);
    limits.item("MAC limit: %d", bridge.mac_limit);
    limits.item("current MAC limit: %d", bridge.current_mac_limit);
    limits.item("MTU: %d", bridge.mtu);
    limits.item("MAC limit action: %u", bridge.mac_limit_action);
    if (bridge.bvi_present()) {
        limits.item("BVI ifhandle: 0x%08x", bridge.bvi_ifhandle);
        limits.item("XID: 0x%08x", bridge.bvi_xid);
    }

    print_flags(out, 3, "Flags", bridge_flags, bridge.flags);
}

constexpr DetailView bridge_detail{end_of<BridgeShowData>, print_bridge};

} // namespace l2fib
