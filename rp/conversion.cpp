// The conversion of the RP's contexts to host order, and the feature test on a converted bridge.
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

/// Feature block 1 carries the counters and indices of statistics, BVI and EVPN.
static bool has_feature_block_1(const BridgeContext &bridge)
{
    // Fields 8, 12 and 25 count here and nowhere else.
    for (const unsigned flag : {8U, unsigned{BridgeContext::pbb_statistics_pointer}, 12U,
                                unsigned{BridgeContext::evpn_statistics_pointer}, 25U}) {
        if (bridge.flags.test(flag)) {
            return true;
        }
    }
    return bridge.bvi_present() || bridge.flags.test(BridgeContext::next_hop_has_bvi);
}

/// Feature block 2 carries the state of storm control.
static bool has_feature_block_2(const BridgeContext &bridge)
{
    const auto &features = bridge.features.features;
    return features.test(FeatureFlags::storm_control_unknown_unicast) ||
           features.test(FeatureFlags::storm_control_broadcast) || features.test(FeatureFlags::storm_control_multicast);
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

uint8_t zel_l2fib_rp_brg_feat_block_control_flags_en(const uint8_t *context, uint32_t block)
{
    using namespace l2fib;
    if (context == nullptr) {
        return 0;
    }
    const auto &bridge = ShowData::promised<const BridgeContext>(context);
    switch (static_cast<std::uint8_t>(block)) {
    case 1: return has_feature_block_1(bridge) ? 1 : 0;
    case 2: return has_feature_block_2(bridge) ? 1 : 0;
    default: return 0;
    }
}
