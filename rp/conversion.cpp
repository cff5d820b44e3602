// The conversion of an RP context to host order, for callers that read it themselves.
#include "common/show_data.h"
#include "rp/ac_context.h"
#include "rp/bridge_context.h"
#include "rp/bridge_mac_context.h"
#include "rp/bridge_port_context.h"
#include "rp/pw_context.h"
#include "zel_l2fib/show.h"

void zel_l2fib_rp_obj_endian_xform_ctx(uint32_t objtype, uint8_t *context)
{
    using namespace l2fib;
    switch (objtype) {
    case L2FIB_OBJTYPE_AC: ShowData::unchecked<Received<AcContext>>(context).to_host(); break;
    case L2FIB_OBJTYPE_MPLS: ShowData::unchecked<Received<PwContext>>(context).to_host(); break;
    case L2FIB_OBJTYPE_BRIDGE: ShowData::unchecked<Received<BridgeContext>>(context).to_host(); break;
    case L2FIB_OBJTYPE_BRIDGE_PORT: ShowData::unchecked<Received<BridgePortContext>>(context).to_host(); break;
    case L2FIB_OBJTYPE_BRIDGE_MAC: ShowData::unchecked<Received<BridgeMacContext>>(context).to_host(); break;
    default: break;
    }
}
