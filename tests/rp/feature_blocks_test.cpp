#include "rp/bridge_context.h"
#include "tests/support/buffer_layout.h"
#include "tests/support/golden.h"
#include "tests/support/ladder.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

/// Each flag of a bridge's words by itself, and the feature blocks that it brings.
TEST(FeatureBlocks, ArePresentByTheFlagsOfTheBridge)
{
    const BufferLayout layout = layout_of<BridgeContext>("bridge");
    std::string text;
    for (const char *word : {"bridge.flags", "bridge.features.features", "bridge.features.more"}) {
        Ladder ladder;
        for (unsigned bit = 0; bit < 32; ++bit) {
            std::vector<std::uint8_t> context = layout.filled_with({{word, 0x80000000U >> bit}});
            zel_l2fib_rp_obj_endian_xform_ctx(L2FIB_OBJTYPE_BRIDGE, context.data());
            std::string blocks;
            for (const std::uint32_t block : {0x0U, 0x1U, 0x2U, 0x3U, 0x101U, 0x202U}) { // eight bits count
                blocks += ' ' + std::to_string(zel_l2fib_rp_brg_feat_block_control_flags_en(context.data(), block));
            }
            ladder.add(bit, blocks);
        }
        text += std::string("== ") + word + ", blocks 0, 1, 2, 3, 0x101, 0x202 by bit\n" + ladder.text();
    }
    expect_golden("feature-blocks.txt", text);
    EXPECT_EQ(zel_l2fib_rp_brg_feat_block_control_flags_en(nullptr, 1), 0);
}

} // namespace l2fib
