#include "hw/bridge_hal_context.h"

#include "common/list.h"

namespace l2fib
{

static constexpr FlagTable hal_flags{{
    {BridgeHalContext::mac_count_read_pending, "MAC Count Read Pending"},
    {BridgeHalContext::bvi_configured, "BVI Configured"},
    {BridgeHalContext::storm_control_failure, "Storm Control Failure"},
    {BridgeHalContext::storm_control_unit_kbps, "Storm Control Unit KBPS"},
}};

void print_bridge_hal_context(Output &out, std::uint32_t level, const BridgeHalContext &bridge,
                              std::span<const BridgeHalNpEntry> nps)
{
    const Section section(out, "hal");
    out.line(level);
    out.line(level, "Platform Bridge HAL context:");
    print_flags(out, level + 1, "Flags", hal_flags, bridge.flags);

    List summary{out, level + 1};
    summary.item("Number of NPs: %d", called("np_count", static_cast<std::uint32_t>(nps.size())));
    summary.item("learn key: %d", bridge.learn_key);
    summary.item("vni_id: %d", bridge.vni_id);

    for (std::uint32_t np = 0; np < nps.size(); ++np) {
        const BridgeHalNpEntry &entry = nps[np];
        if (entry.members() == 0) {
            continue;
        }
        const Element of_np(out, "nps");
        out.line(level + 1, "NP: %d, shg 0 members: %d, shg 1 members: %d, shg 2 members: %d", np, entry.shg_members[0],
                 entry.shg_members[1], entry.shg_members[2]);
        out.line(level + 1, "MAC limit counter index: 0x%08x", entry.mac_limit_counter_index);
    }
}

} // namespace l2fib
