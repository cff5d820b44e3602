#include "examples/show_data_builder.h"
#include "rp/bridge_context.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>
#include <set>

namespace l2fib
{

/// The feature blocks of a bridge as a sum: 1 and 2.
static unsigned blocks(const BridgeContext &bridge)
{
    std::vector<std::uint8_t> context = ShowDataBuilder{}.add(bridge).bytes();
    zel_l2fib_rp_obj_endian_xform_ctx(L2FIB_OBJTYPE_BRIDGE, context.data());
    const auto is_enabled = [&](std::uint32_t block) {
        return unsigned{zel_l2fib_rp_brg_feat_block_control_flags_en(context.data(), block)};
    };
    EXPECT_EQ(is_enabled(3), 0U);
    EXPECT_EQ(is_enabled(0x101), is_enabled(1)); // eight bits count
    return is_enabled(1) + 2 * is_enabled(2);
}

TEST(FeatureBlocks, ArePresentByTheFlagsOfTheBridge)
{
    const std::set<unsigned> block_1_flags = {8, 9, 12, 23, 25, 28};
    const std::set<unsigned> block_2_features = {17, 18, 19};
    for (unsigned field = 0; field < 32; ++field) {
        BridgeContext flag{};
        BridgeContext feature{};
        BridgeContext more{};
        set_flags(more.features.more, {field});
        EXPECT_EQ(blocks(more), field == FeatureFlags::bvi_present ? 1U : 0U) << field;
        if (field < 31) {
            set_flags(flag.flags, {field});
            EXPECT_EQ(blocks(flag), block_1_flags.contains(field) ? 1U : 0U) << field;
        }
        if (field < 29) {
            set_flags(feature.features.features, {field});
            EXPECT_EQ(blocks(feature), block_2_features.contains(field) ? 2U : 0U) << field;
        }
    }
    EXPECT_EQ(zel_l2fib_rp_brg_feat_block_control_flags_en(nullptr, 1), 0);
}

} // namespace l2fib
