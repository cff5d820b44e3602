// The conversion of the RP's contexts to host order.
#include "common/show_data.h"
#include "rp/ac_context.h"
#include "rp/bridge_context.h"
#include "rp/bridge_mac_context.h"
#include "rp/bridge_port_context.h"
#include "rp/pw_context.h"
#include "zel_l2fib/show.h"

namespace l2fib
{

void AcContext::to_host()
{
    l2fib::to_host(unread_0, service, state, ifhandle, rack_id, sfp, xid, bridge_id, shg, mac_limit,
                   main_interface_type, unread_44, flags, unread_80);
}

void PwContext::to_host()
{
    l2fib::to_host(unread_0, service, state, unread_12, xid, bridge_id, mac_limit, vc_label, disp_vc_label, unread_36,
                   nr_ldi_hash, r_ldi_hash, lag_hash, shg, flags, unread_220, unread_224);
}

void BridgeContext::to_host()
{
    l2fib::to_host(unread_0, state, bridge_id, unread_12, unread_20, unread_60, unread_64, mac_limit, current_mac_limit,
                   static_macs, port_level_static_macs, mtu, mac_limit_action, unread_96, unread_100, features,
                   unread_128, flags, unread_156, num_pw_members, bvi_ifhandle, unread_428, unread_500, bvi_xid,
                   last_notification, unread_520, unread_536, unread_544, unread_812, unread_826, unread_828);
}

void BridgePortContext::to_host()
{
    l2fib::to_host(unread_0, state, pi_xid, bridge_id, unread_20, mac_limit, num_static_macs, flags, unread_36,
                   slot_mask, unread_48, unread_60, unread_64, features, unknown_unicast_rate, broadcast_rate,
                   multicast_rate, np_flood_mask, np_flood_mask_old, unread_104, lb_type, p2mp_role, last_notification,
                   unread_128, unread_140, unread_148);
}

void BridgeMacContext::to_host()
{
    l2fib::to_host(version, state, flags, bridge_id);
}

} // namespace l2fib

void zel_l2fib_rp_obj_endian_xform_ctx(uint32_t objtype, uint8_t *context)
{
    using namespace l2fib;
    switch (objtype) {
    case L2FIB_OBJTYPE_AC: ShowData::promised<AcContext>(context).to_host(); break;
    case L2FIB_OBJTYPE_MPLS: ShowData::promised<PwContext>(context).to_host(); break;
    case L2FIB_OBJTYPE_BRIDGE: ShowData::promised<BridgeContext>(context).to_host(); break;
    case L2FIB_OBJTYPE_BRIDGE_PORT: ShowData::promised<BridgePortContext>(context).to_host(); break;
    case L2FIB_OBJTYPE_BRIDGE_MAC: ShowData::promised<BridgeMacContext>(context).to_host(); break;
    default: break;
    }
}
