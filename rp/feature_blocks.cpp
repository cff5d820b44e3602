// Which feature blocks the hardware's part of a bridge carries.
#include "common/show_data.h"
#include "rp/bridge_context.h"
#include "zel_l2fib/show.h"

#include <algorithm>
#include <iterator>

namespace l2fib
{

// Three of these are known for nothing else.
static constexpr unsigned flags_with_feature_block_1[] = {
    8,  BridgeContext::pbb_statistics_pointer, 12, BridgeContext::evpn_statistics_pointer,
    25, BridgeContext::next_hop_has_bvi,
};

static constexpr unsigned features_with_feature_block_2[] = {
    FeatureFlags::storm_control_unknown_unicast,
    FeatureFlags::storm_control_broadcast,
    FeatureFlags::storm_control_multicast,
};

bool BridgeContext::has_feature_block_1() const
{
    return bvi_present() || std::any_of(std::begin(flags_with_feature_block_1), std::end(flags_with_feature_block_1),
                                        [this](unsigned flag) { return flags.test(flag); });
}

bool BridgeContext::has_feature_block_2() const
{
    return std::any_of(std::begin(features_with_feature_block_2), std::end(features_with_feature_block_2),
                       [this](unsigned feature) { return features.features.test(feature); });
}

} // namespace l2fib

uint8_t zel_l2fib_rp_brg_feat_block_control_flags_en(const uint8_t *context, uint32_t block)
{
    using namespace l2fib;
    if (context == nullptr) {
        return 0;
    }
    const auto &bridge = ShowData::promised<const BridgeContext>(context);
    switch (static_cast<std::uint8_t>(block)) {
    case 1: return bridge.has_feature_block_1() ? 1 : 0;
    case 2: return bridge.has_feature_block_2() ? 1 : 0;
    default: return 0;
    }
}
