#include "rp/context_end.h"

#include "rp/ac_context.h"
#include "rp/bridge_context.h"
#include "rp/bridge_mac_context.h"
#include "rp/bridge_port_context.h"
#include "rp/names.h"
#include "rp/next_hop_context.h"
#include "rp/pw_context.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

/// The private view of a VPLS AC goes on with the bridge port behind the AC.
static std::uint64_t private_ac_end(ShowData data)
{
    const auto *ac = data.at<AcShowData>(0);
    if (ac == nullptr || ac->context.service.from_wire() != service_vpls) {
        return sizeof(AcShowData);
    }
    return ac->hardware_offset() + sizeof(BridgePortContext);
}

static std::uint64_t next_hop_end(ShowData data)
{
    const auto *next_hop = data.at<NextHopContext>(0);
    const std::uint64_t paths = next_hop == nullptr ? 0 : next_hop->num_paths.from_wire();
    return sizeof(NextHopContext) + paths * sizeof(IgpPath);
}

std::uint64_t context_end(bool private_view, std::uint32_t objtype, ShowData data)
{
    switch (objtype) {
    case L2FIB_OBJTYPE_AC: return private_view ? private_ac_end(data) : sizeof(AcShowData);
    case L2FIB_OBJTYPE_MPLS: return sizeof(PwContext);
    case L2FIB_OBJTYPE_NHOP: return private_view ? next_hop_end(data) : 0;
    case L2FIB_OBJTYPE_BRIDGE: return sizeof(BridgeShowData);
    case L2FIB_OBJTYPE_BRIDGE_PORT: return private_view ? 0 : sizeof(BridgePortContext);
    case L2FIB_OBJTYPE_BRIDGE_MAC: return private_view ? 0 : sizeof(BridgeMacContext);
    default: return 0;
    }
}

} // namespace l2fib
