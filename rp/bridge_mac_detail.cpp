#include "common/formatters.h"
#include "common/show_data.h"
#include "rp/bridge_mac_context.h"
#include "rp/detail.h"
#include "rp/names.h"

namespace l2fib
{

static constexpr FlagTable mac_flags{{
    {BridgeMacContext::alive_check, "Alive Check"},
    {BridgeMacContext::global_xid, "Global XID"},
    {BridgeMacContext::pbb_mac_mapping, "PBB MAC Mapping"},
    {BridgeMacContext::evpn, "EVPN"},
}};

static void print_bridge_mac(Output &out, std::uint32_t direction, std::uint8_t *show_data)
{
    auto &parts = ShowData::unchecked<BridgeMacShowData>(show_data);
    const BridgeMacContext &mac = parts.context.to_host();
    const BridgeMacForwarding &forwarding = parts.forwarding.to_host();

    out.first_line(1, "Platform bridge MAC context:");

    List summary{out, 1};
    print_direction(summary, direction);
    summary.item("MAC (ver %d)", mac.version);
    summary.item("Bridge id: %d, MAC: %s", mac.bridge_id, mac_text(mac.mac));
    summary.item("XID: 0x%08x", forwarding.xid);
    summary.item("State: %s", state_name(mac.state));

    print_flags(out, 2, "Flags", mac_flags, mac.flags);
}

constexpr DetailView bridge_mac_detail{end_of<BridgeMacShowData>, print_bridge_mac};

} // namespace l2fib
