// What a view leaves in the caller's buffer, whether or not a line shows it: which fields are turned round to host
// order, and which stay as received. Of packed words the bytes are given, before and after.
#include "hw/bridge.h"
#include "hw/bridge_domain.h"
#include "hw/bridge_member.h"
#include "hw/hal_summary.h"
#include "hw/mac.h"
#include "hw/plain_ac.h"
#include "hw/pw.h"
#include "hw/resource.h"
#include "hw/vpls_ac.h"
#include "rp/bridge_context.h"
#include "rp/bridge_mac_context.h"
#include "rp/event_statistics.h"
#include "rp/next_hop_context.h"
#include "rp/state_summary.h"
#include "tests/support/buffer_layout.h"
#include "tests/support/golden.h"
#include "zel_l2fib/show.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iomanip>

namespace l2fib
{

using Wire = std::vector<std::uint8_t>;
using Show = std::function<std::uint32_t(std::uint8_t *show_data, std::uint64_t size)>;

struct BufferCase {
    const char *title;
    BufferLayout layout;
    Values values; // that decide how far the view goes
    Show show;
};

static Show view(std::uint32_t objtype, std::uint32_t view_flags, std::uint32_t direction = L2FIB_INGRESS)
{
    return [=](std::uint8_t *show_data, std::uint64_t size) {
        return zel_l2fib_print_internal(objtype, 0, direction, view_flags, show_data, size);
    };
}

static Show conversion(std::uint32_t objtype)
{
    return [=](std::uint8_t *context, std::uint64_t /*size*/) {
        zel_l2fib_rp_obj_endian_xform_ctx(objtype, context);
        return 0U;
    };
}

static Show summary(decltype(zel_l2fib_platform_summary_hw_print_internal) *print)
{
    return [=](std::uint8_t *show_data, std::uint64_t size) { return print(0, 0, show_data, size); };
}

using NpEntry = Bytes<np_entry_size>;

// clang-format off
static const BufferCase cases[] = {
    {"AC context, converted", layout_of<AcContext>("ac"), {}, conversion(L2FIB_OBJTYPE_AC)},
    {"PW context, converted", layout_of<PwShowData>("pw"), {}, conversion(L2FIB_OBJTYPE_MPLS)},
    {"bridge context, converted", layout_of<BridgeContext>("bridge"), {}, conversion(L2FIB_OBJTYPE_BRIDGE)},
    {"bridge port context, converted", layout_of<BridgePortContext>("port"), {},
     conversion(L2FIB_OBJTYPE_BRIDGE_PORT)},
    {"bridge MAC context, converted", layout_of<BridgeMacShowData>("mac"), {}, conversion(L2FIB_OBJTYPE_BRIDGE_MAC)},
    {"VPLS AC, ingress", layout_of<AcShowData, NpEntry, VplsIngressBlock, VplsIngressNpRecord,
     VplsIngressTrailer>("ac", "np_entry", "block", "np", "trailer"), {{"ac.np_count.count", 1}, {"ac.context.service",
     2}, {"ac.context.state", 2}, {"ac.context.flags", 0x00012345}, {"block.np_count.count", 1},
     {"block.port.features.features", 0x04012400}, {"np.np.uidb.retrieval_status", 0}}, view(L2FIB_OBJTYPE_AC,
     L2FIB_VIEW_DETAIL)},
    {"VPLS AC, egress, without bridge ports and with an uIDB entry that was not read", layout_of<AcShowData, NpEntry,
     VplsEgressBlock, VplsNpRecord>("ac", "np_entry", "block", "np"), {{"ac.np_count.count", 1}, {"ac.context.service",
     2}, {"ac.context.state", 2}, {"ac.context.flags", 0x00012345}, {"block.np_count.count", 1}, {"np.bports_present",
     2}}, view(L2FIB_OBJTYPE_AC, L2FIB_VIEW_DETAIL, L2FIB_EGRESS)},
    {"point-to-point PW", layout_of<PwHardwareShowData, PwNpRecord>("pw", "np"), {{"pw.rp.context.service", 0},
     {"pw.rp.context.state", 2}, {"pw.np_count", 1}}, view(L2FIB_OBJTYPE_MPLS, L2FIB_VIEW_DETAIL)},
    {"VPLS PW, ingress", layout_of<PwHardwareShowData, XidEntry, PwIngressBlock, StormControlProfile>("pw", "xid",
     "ingress", "profile"), {{"pw.rp.context.service", 2}, {"pw.rp.context.state", 2}, {"pw.np_count", 1}},
     view(L2FIB_OBJTYPE_MPLS, L2FIB_VIEW_DETAIL)},
    {"bridge, ingress", layout_of<BridgeShowData, BridgeHalNpEntry, BridgeFeatureBlock1, BridgeFeatureBlock1Np,
     BridgeMemberCounts, StormControlState, StormControlProfile, BridgeDomainRecord, BridgeMemberRecord[2],
     BridgeMemberRecord[2]>("bridge", "hal_np", "block_1", "block_1_np", "counts", "storm_control", "profile",
     "domain", "member", "pw_over_bvi"), {{"bridge.np_count.count", 1}, {"bridge.context.features.features",
     0x04012400}, {"bridge.context.features.more", 0x00040001}, {"hal_np.shg_members[0]", 1}, {"hal_np.shg_members[1]",
     0}, {"hal_np.shg_members[2]", 0}, {"block_1_np.pw_over_bvi_members[0]", 1}, {"counts.members", 1},
     {"counts.pw_over_bvi_members", 1}}, view(L2FIB_OBJTYPE_BRIDGE, L2FIB_VIEW_DETAIL)},
    {"MAC", layout_of<BridgeMacShowData, MacEntry>("mac", "entry"), {}, view(L2FIB_OBJTYPE_BRIDGE_MAC,
     L2FIB_VIEW_DETAIL)},
    {"next hop, private", layout_of<NextHopContext, IgpPath[2]>("next_hop", "path"), {{"next_hop.num_paths", 2}},
     view(L2FIB_OBJTYPE_NHOP, L2FIB_VIEW_PRIVATE)},
    {"resources", layout_of<ResourceShowData, BigU32, Bytes<13252>>("head", "np_count", "resources"), {{"head.length",
     sizeof(ResourceData) + 4}, {"np_count", 1}}, view(L2FIB_OBJTYPE_RSRC_MON, L2FIB_VIEW_PRIVATE)},
    {"state summary", layout_of<StateSummary, U8>("summary", "hardware"), {},
     summary(zel_l2fib_platform_summary_hw_print_internal)},
    {"event statistics", layout_of<EventCounts, EventTimes>("counts", "times"), {},
     summary(zel_l2fib_platform_msg_counter_hw_print_internal)},
    {"HAL summary", layout_of<BigU32, BigU32, BigU16, HalSummaryTotals>("np_count", "mark", "status", "totals"),
     {{"np_count", 1}}, [](std::uint8_t *show_data, std::uint64_t size) { return zel_l2fib_trident_print_summary(0,
     show_data, size); }},
};
// clang-format on

static std::string hex(const Wire &bytes)
{
    std::ostringstream text;
    for (const unsigned byte : bytes) {
        text << std::hex << std::setfill('0') << std::setw(2) << byte;
    }
    return text.str();
}

static std::string change_of(const Wire &before, const Wire &after)
{
    if (after == before) {
        return "as received";
    }
    if (std::equal(after.begin(), after.end(), before.rbegin())) {
        return std::to_string(before.size()) + " bytes turned";
    }
    return hex(before) + " -> " + hex(after);
}

/// A row for neighbouring fields with which the same was done.
static std::string changes(const BufferLayout &layout, const Wire &before, const Wire &after)
{
    struct Row {
        const BufferField *first;
        const BufferField *last;
        std::string change;
    };
    std::vector<Row> rows;
    for (const BufferField &field : layout.fields()) {
        const auto bytes = [&](const Wire &wire) {
            const auto begin = wire.begin() + static_cast<std::ptrdiff_t>(field.offset);
            return Wire(begin, begin + static_cast<std::ptrdiff_t>(field.width));
        };
        const std::string change = change_of(bytes(before), bytes(after));
        if (rows.empty() || rows.back().change != change) {
            rows.push_back({&field, &field, change});
        }
        rows.back().last = &field;
    }
    std::ostringstream text;
    for (const Row &row : rows) {
        text << std::setw(5) << row.first->offset << " .. " << std::setw(5) << row.last->offset + row.last->width - 1
             << "  " << std::left << std::setw(20) << row.change << std::right << "  " << row.first->name
             << (row.first == row.last ? "" : " .. " + row.last->name) << '\n';
    }
    return text.str();
}

TEST(Buffers, WhatTheViewsConvert)
{
    std::string text;
    for (const BufferCase &c : cases) {
        const Wire before = c.layout.numbers_with(c.values);
        const GuardedBytes data(before);
        printed([&] { EXPECT_EQ(c.show(data.data(), data.size()), 0U) << c.title; });
        text +=
            std::string("== ") + c.title + '\n' + changes(c.layout, before, {data.data(), data.data() + data.size()});
    }
    expect_golden("buffers.txt", text);
}

TEST(Buffers, OtherContextsAreNotTouched)
{
    for (const std::uint32_t objtype : {0U, 1U, 4U, 10U, 12U, 15U, 39U, 40U, 0x80000002U}) {
        zel_l2fib_rp_obj_endian_xform_ctx(objtype, nullptr);
    }
}

} // namespace l2fib
