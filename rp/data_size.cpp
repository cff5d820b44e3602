// The sizes by which the producer of the show data and the views find each part of it.
#include "rp/ac_context.h"
#include "rp/bridge_context.h"
#include "rp/bridge_mac_context.h"
#include "rp/bridge_port_context.h"
#include "rp/pw_context.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

struct ContextSize {
    std::uint32_t objtype;
    std::uint64_t fixed;
    std::uint64_t per_np;
};

static constexpr ContextSize context_sizes[] = {
    {L2FIB_OBJTYPE_AC, sizeof(AcContext), np_entry_size},
    {L2FIB_OBJTYPE_MPLS, sizeof(PwShowData), 0},
    {L2FIB_OBJTYPE_PBB_PORT, 25, 0},
    {L2FIB_OBJTYPE_VNI, 72, 0},
    {L2FIB_OBJTYPE_L2TP_SESSION, 120, 0},
    {L2FIB_OBJTYPE_BRIDGE, sizeof(BridgeContext) + sizeof(BridgeHalContext), np_entry_size},
    {L2FIB_OBJTYPE_BRIDGE_PORT, sizeof(BridgePortContext), 0},
    {L2FIB_OBJTYPE_BRIDGE_MAC, sizeof(BridgeMacShowData), 0},
    {L2FIB_OBJTYPE_BRIDGE_MAIN_PORT, 412, 0},
    {L2FIB_OBJTYPE_DHCP, 48, 0},
    {L2FIB_OBJTYPE_EVPN_MCAST_OLE, 96, 0},
};

} // namespace l2fib

uint64_t zel_l2fib_data_size(uint32_t objtype, uint8_t np_count)
{
    for (const l2fib::ContextSize &size : l2fib::context_sizes) {
        if (size.objtype == objtype) {
            return size.fixed + size.per_np * np_count;
        }
    }
    return 0;
}

uint64_t zel_l2fib_hal_brg_feature_data_size(uint8_t block, uint8_t np_count)
{
    switch (block) {
    case 1: return 16 + std::uint64_t{20} * np_count;
    case 2: return sizeof(l2fib::StormControlState) * np_count;
    default: return 0;
    }
}
