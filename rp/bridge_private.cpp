#include "common/list.h"
#include "common/show_data.h"
#include "rp/bridge_context.h"
#include "rp/private.h"

namespace l2fib
{

static void print_bridge(Output &out, std::uint8_t *show_data)
{
    const BridgeContext &bridge = ShowData::unchecked<BridgeShowData>(show_data).context.to_host();

    out.line(1, "Bridge Context");
    out.line(1, "-------------------");

    List values{out, 2};
    values.item("ID: %d", bridge.bridge_id);
    values.item("mac limit: %d", bridge.mac_limit);
    values.item("current mac limit: %d", bridge.current_mac_limit);
    values.item("num static macs: %d", bridge.static_macs);
    values.item("num port level static macs: %d", bridge.port_level_static_macs);
    values.item("mtu: %d", bridge.mtu);
    values.item("num pw members: %d", bridge.num_pw_members);
    values.item("bvi xid pd: %d", bridge.bvi_xid);
    out.line(2);
}

constexpr PrivateView bridge_private{end_of<BridgeShowData>, print_bridge};

} // namespace l2fib
