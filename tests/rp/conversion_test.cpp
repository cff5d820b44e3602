#include "examples/show_data_builder.h"
#include "rp/bridge_context.h"
#include "tests/support/printed.h"
#include "zel_l2fib/show.h"

#include <gtest/gtest.h>

namespace l2fib
{

/// Neighbouring fields of one width, from the first byte to the last.
struct Fields {
    std::size_t first;
    std::size_t last;
    std::size_t width;
};

/// Bytes that the bit-field rule rearranges: each word of one-bit fields keeps its bytes and turns their bits round.
struct BitFields {
    std::size_t offset;
    Bytes<4> wire;
    Bytes<4> host;
};

struct ContextLayout {
    std::uint32_t objtype;
    std::size_t size;
    std::vector<Fields> runs;
    std::vector<BitFields> words;
};

static const ContextLayout layouts[] = {
    {L2FIB_OBJTYPE_AC,
     104,
     {{0, 15, 4}, {16, 17, 2}, {20, 39, 4}, {40, 41, 2}, {44, 47, 4}, {80, 81, 2}},
     {{64, {0x80, 0x01, 0x20, 0x04}, {0x01, 0x80, 0x04, 0x20}}}},
    {L2FIB_OBJTYPE_MPLS,
     304,
     {{0, 79, 4}, {220, 221, 2}, {224, 227, 4}},
     {{216, {0x80, 0x00, 0x02, 0x81}, {0x01, 0x00, 0xc0, 0x40}}}},
    {L2FIB_OBJTYPE_BRIDGE,
     928,
     {{0, 11, 4},
      {12, 19, 2},
      {20, 59, 4},
      {60, 61, 2},
      {64, 91, 4},
      {96, 97, 2},
      {100, 111, 4},
      {128, 151, 8},
      {156, 421, 2},
      {424, 431, 4},
      {500, 511, 4},
      {512, 519, 8},
      {520, 535, 4},
      {536, 807, 2},
      {812, 823, 4},
      {826, 827, 2},
      {828, 847, 4}},
     {{112, {0x04, 0x00, 0x10, 0x01}, {0x40, 0x00, 0x08, 0x80}},
      {116, {0x00, 0x04, 0x00, 0x00}, {0x00, 0x20, 0x00, 0x00}},
      {120, {0x81, 0x12, 0x34, 0x56}, {0x05, 0x12, 0x34, 0x56}},
      {152, {0x01, 0x00, 0x00, 0x01}, {0x80, 0x00, 0x00, 0x40}}}},
    {L2FIB_OBJTYPE_BRIDGE_PORT,
     2588,
     {{0, 15, 4},
      {20, 31, 4},
      {36, 59, 4},
      {60, 61, 2},
      {64, 75, 4},
      {88, 99, 4},
      {100, 105, 2},
      {108, 115, 4},
      {120, 127, 8},
      {128, 131, 4},
      {140, 143, 4},
      {148, 151, 4}},
     {{32, {0x20, 0x00, 0x00, 0x01}, {0x04, 0x00, 0x00, 0x04}},
      {76, {0x04, 0x00, 0x80, 0x00}, {0x40, 0x00, 0x02, 0x00}},
      {80, {0x80, 0x00, 0x00, 0x01}, {0x01, 0x00, 0x00, 0x80}},
      {84, {0x42, 0xab, 0xcd, 0xef}, {0x0a, 0xab, 0xcd, 0xef}}}},
    {L2FIB_OBJTYPE_BRIDGE_MAC,
     116,
     {{0, 7, 4}, {12, 13, 2}},
     {{8, {0x80, 0x00, 0x00, 0x01}, {0x01, 0x10, 0x00, 0x00}}}},
};

TEST(Conversion, TurnsEveryFieldRoundAndNothingElse)
{
    for (const ContextLayout &layout : layouts) {
        std::vector<std::uint8_t> wire(layout.size);
        for (std::size_t i = 0; i < wire.size(); ++i) {
            wire[i] = static_cast<std::uint8_t>(i * 7 + i / 256);
        }
        std::vector<std::uint8_t> host = wire;
        const auto at = [](std::vector<std::uint8_t> &bytes, std::size_t offset) {
            return bytes.begin() + static_cast<std::ptrdiff_t>(offset);
        };
        for (const Fields &run : layout.runs) {
            for (std::size_t field = run.first; field < run.last; field += run.width) {
                std::reverse(at(host, field), at(host, field + run.width));
            }
        }
        for (const BitFields &word : layout.words) {
            std::copy(word.wire.begin(), word.wire.end(), at(wire, word.offset));
            std::copy(word.host.begin(), word.host.end(), at(host, word.offset));
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
    const struct {
        std::initializer_list<unsigned> flags;    // of the bridge
        std::initializer_list<unsigned> features; // first word
        std::initializer_list<unsigned> more;     // second word
        bool block_1;
        bool block_2;
    } cases[] = {
        {{}, {}, {}, false, false},
        {{8}, {}, {}, true, false},
        {{BridgeContext::pbb_statistics_pointer}, {}, {}, true, false},
        {{12}, {}, {}, true, false},
        {{BridgeContext::evpn_statistics_pointer}, {}, {}, true, false},
        {{25}, {}, {}, true, false},
        {{BridgeContext::next_hop_has_bvi}, {}, {}, true, false},
        {{0, 1, 2, 3, 4, 5, 6, 7, 10, 11, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 24, 26, 27, 29},
         {},
         {},
         false,
         false},
        {{}, {}, {FeatureFlags::bvi_present}, true, false},
        {{}, {}, {12, 14}, false, false},
        {{}, {FeatureFlags::storm_control_unknown_unicast}, {}, false, true},
        {{}, {FeatureFlags::storm_control_broadcast}, {}, false, true},
        {{}, {FeatureFlags::storm_control_multicast}, {}, false, true},
        {{}, {16, 20}, {}, false, false},
    };
    for (const auto &c : cases) {
        BridgeContext bridge{};
        set_flags(bridge.flags, c.flags);
        set_flags(bridge.features.features, c.features);
        set_flags(bridge.features.more, c.more);
        bridge.to_host();
        const auto *context = reinterpret_cast<const std::uint8_t *>(&bridge);
        EXPECT_EQ(zel_l2fib_rp_brg_feat_block_control_flags_en(context, 1), c.block_1 ? 1 : 0);
        EXPECT_EQ(zel_l2fib_rp_brg_feat_block_control_flags_en(context, 2), c.block_2 ? 1 : 0);
        EXPECT_EQ(zel_l2fib_rp_brg_feat_block_control_flags_en(context, 0x101), c.block_1 ? 1 : 0);
        EXPECT_EQ(zel_l2fib_rp_brg_feat_block_control_flags_en(context, 3), 0);
    }
    EXPECT_EQ(zel_l2fib_rp_brg_feat_block_control_flags_en(nullptr, 1), 0);
}

} // namespace l2fib
