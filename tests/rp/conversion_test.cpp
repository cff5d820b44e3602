#include "examples/show_data_builder.h"
#include "rp/bridge_context.h"
#include "tests/support/printed.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>
#include <set>

namespace l2fib
{

/// A packed word, as big-endian numbers of its bytes before and after.
struct PackedWord {
    std::size_t offset;
    std::uint32_t wire;
    std::uint32_t host;
};

/// A context, with its runs of fields of each width as pairs of first and last byte.
struct Layout {
    std::uint32_t objtype;
    std::size_t size;
    std::vector<std::size_t> u16;
    std::vector<std::size_t> u32;
    std::vector<std::size_t> u64;
    std::vector<PackedWord> words;
};

static const Layout layouts[] = {
    {L2FIB_OBJTYPE_AC, 104, {16, 17, 40, 41, 80, 81}, {0, 15, 20, 39, 44, 47}, {}, {{64, 0x80012004, 0x01800420}}},
    {L2FIB_OBJTYPE_MPLS, 304, {220, 221}, {0, 79, 224, 227}, {}, {{216, 0x80000281, 0x0100c040}}},
    {L2FIB_OBJTYPE_BRIDGE,
     928,
     {12, 19, 60, 61, 96, 97, 156, 421, 536, 807, 826, 827},
     {0, 11, 20, 59, 64, 91, 100, 111, 424, 431, 500, 511, 520, 535, 812, 823, 828, 847},
     {128, 151, 512, 519},
     {{112, 0x04001001, 0x40000880},
      {116, 0x00040000, 0x00200000},
      {120, 0x81123456, 0x05123456},
      {152, 0x01000001, 0x80000040}}},
    {L2FIB_OBJTYPE_BRIDGE_PORT,
     2588,
     {60, 61, 100, 105},
     {0, 15, 20, 31, 36, 59, 64, 75, 88, 99, 108, 115, 128, 131, 140, 143, 148, 151},
     {120, 127},
     {{32, 0x20000001, 0x04000004},
      {76, 0x04008000, 0x40000200},
      {80, 0x80000001, 0x01000080},
      {84, 0x42abcdef, 0x0aabcdef}}},
    {L2FIB_OBJTYPE_BRIDGE_MAC, 116, {12, 13}, {0, 7}, {}, {{8, 0x80000001, 0x01100000}}},
};

TEST(Conversion, TurnsEveryFieldRoundAndNothingElse)
{
    for (const Layout &layout : layouts) {
        std::vector<std::uint8_t> wire(layout.size);
        for (std::size_t i = 0; i < wire.size(); ++i) {
            wire[i] = static_cast<std::uint8_t>(i * 7 + i / 256);
        }
        std::vector<std::uint8_t> host = wire;
        const auto turn_round = [&](const std::vector<std::size_t> &runs, std::size_t width) {
            for (std::size_t run = 0; run < runs.size(); run += 2) {
                for (std::size_t field = runs[run]; field < runs[run + 1]; field += width) {
                    std::reverse(&host[field], &host[field] + width);
                }
            }
        };
        turn_round(layout.u16, 2);
        turn_round(layout.u32, 4);
        turn_round(layout.u64, 8);
        for (const PackedWord &word : layout.words) {
            for (unsigned byte = 0; byte < 4; ++byte) {
                wire[word.offset + byte] = static_cast<std::uint8_t>(word.wire >> (24 - 8 * byte));
                host[word.offset + byte] = static_cast<std::uint8_t>(word.host >> (24 - 8 * byte));
            }
        }
        const GuardedBytes context(wire);
        zel_l2fib_rp_obj_endian_xform_ctx(layout.objtype, context.data());
        for (std::size_t i = 0; i < host.size(); ++i) {
            ASSERT_EQ(context.data()[i], host[i]) << "object type " << layout.objtype << " offset " << i;
        }
    }
}

TEST(Conversion, LeavesOtherObjectTypesAlone)
{
    for (const std::uint32_t objtype : {0U, 1U, 4U, 10U, 12U, 15U, 39U, 40U, 0x80000002U}) {
        zel_l2fib_rp_obj_endian_xform_ctx(objtype, nullptr); // reads nothing
    }
}

TEST(FeatureBlocks, ArePresentByTheFlagsOfTheBridge)
{
    const std::set<unsigned> block_1_flags = {8, 9, 12, 23, 25, 28};
    const std::set<unsigned> block_2_features = {17, 18, 19};
    const auto blocks = [](BridgeContext bridge) {
        bridge.to_host();
        const auto *context = reinterpret_cast<const std::uint8_t *>(&bridge);
        EXPECT_EQ(zel_l2fib_rp_brg_feat_block_control_flags_en(context, 3), 0);
        EXPECT_EQ(zel_l2fib_rp_brg_feat_block_control_flags_en(context, 0x101),
                  zel_l2fib_rp_brg_feat_block_control_flags_en(context, 1));
        return std::pair<bool, bool>{zel_l2fib_rp_brg_feat_block_control_flags_en(context, 1),
                                     zel_l2fib_rp_brg_feat_block_control_flags_en(context, 2)};
    };
    for (unsigned field = 0; field < 32; ++field) {
        BridgeContext flag{};
        BridgeContext feature{};
        BridgeContext more{};
        set_flags(more.features.more, {field});
        EXPECT_EQ(blocks(more), std::pair(field == 13, false)) << field;
        if (field < 31) {
            set_flags(flag.flags, {field});
            EXPECT_EQ(blocks(flag), std::pair(block_1_flags.contains(field), false)) << field;
        }
        if (field < 29) {
            set_flags(feature.features.features, {field});
            EXPECT_EQ(blocks(feature), std::pair(false, block_2_features.contains(field))) << field;
        }
    }
    EXPECT_EQ(zel_l2fib_rp_brg_feat_block_control_flags_en(nullptr, 1), 0);
}

} // namespace l2fib
