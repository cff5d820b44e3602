// Which feature blocks the hardware's part of a bridge carries.
#include "common/show_data.h"
#include "rp/bridge_context.h"
#include "zel_l2fib/show.h"

uint8_t zel_l2fib_rp_brg_feat_block_control_flags_en(const uint8_t *context, uint32_t block)
{
    using namespace l2fib;
    if (context == nullptr) {
        return 0;
    }
    const BridgeContext &bridge = ShowData::unchecked<const Received<BridgeContext>>(context).converted_before();
    switch (static_cast<std::uint8_t>(block)) {
    case 1: return bridge.has_feature_block_1() ? 1 : 0;
    case 2: return bridge.has_feature_block_2() ? 1 : 0;
    default: return 0;
    }
}
