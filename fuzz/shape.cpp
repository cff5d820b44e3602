#include "fuzz/shape.h"

#include "fuzz/functions.h"
#include "hw/bridge.h"
#include "hw/bridge_domain.h"
#include "hw/bridge_member.h"
#include "hw/hal_summary.h"
#include "hw/mac.h"
#include "hw/np.h"
#include "hw/plain_ac.h"
#include "hw/pw.h"
#include "hw/resource.h"
#include "hw/vpls_ac.h"
#include "rp/bridge_context.h"
#include "rp/bridge_mac_context.h"
#include "rp/event_statistics.h"
#include "rp/names.h"
#include "rp/next_hop_context.h"
#include "rp/state_summary.h"
#include "zel_l2fib/show.h"

#include <algorithm>

namespace l2fib
{

using Value = std::uint64_t;

static constexpr Shape::Values flags{};

static constexpr Value objtypes[] = {
    L2FIB_OBJTYPE_AC,         L2FIB_OBJTYPE_AC,          L2FIB_OBJTYPE_AC,       L2FIB_OBJTYPE_MPLS,
    L2FIB_OBJTYPE_MPLS,       L2FIB_OBJTYPE_BRIDGE,      L2FIB_OBJTYPE_BRIDGE,   L2FIB_OBJTYPE_BRIDGE_PORT,
    L2FIB_OBJTYPE_BRIDGE_MAC, L2FIB_OBJTYPE_NHOP,        L2FIB_OBJTYPE_RSRC_MON, L2FIB_OBJTYPE_MCAST_LEAF,
    L2FIB_OBJTYPE_NONE,       L2FIB_OBJTYPE_L2RIB_CACHE, L2FIB_OBJTYPE_MAX,      0xffffffff};
static constexpr Value directions[] = {0, L2FIB_INGRESS, L2FIB_INGRESS, L2FIB_EGRESS, L2FIB_EGRESS, 3};
static constexpr Value view_flags[] = {0, 1, 1, 2, 2, 4, 7, 8};
static constexpr Value levels[] = {0, 1, 10, 34, 35, 36, 63, 0xfffffffe, 0xffffffff};
static constexpr Value functions[] = {0, 1, 2, 3};
static constexpr Value periods[] = {0, 1, 3, 6, 7, sizeof(IgpPath), 2 * sizeof(BridgeMemberRecord), sizeof(XidEntry)};
static constexpr Value magnitudes[] = {0, 6, 8, 10, 12};
static constexpr Value card_types[] = {0x1e1000, 0x1e1000, 0x1e1001, 0x1e1002, 0x1e1003,
                                       0x1e1004, 0x1e1005, 0,        0x1e0fff, 0xffffffff};
static constexpr Value clock_values[] = {0, 1, 1'000'000'000, 0xffffffff, 0x7fffffffffffffff, 0xffffffffffffffff};
static constexpr Value answers[] = {0, 0, 1, L2FIB_SHOW_ERR_ARGS};

static constexpr Value np_counts[] = {0, 1, 2, 3, 7, 8, 9, 10, 0xff, 0x100, 0x101, 0x108, 0xffff};
static constexpr Value services[] = {service_mtun, service_local_switch, service_vpls, service_vpls, 3, 4, 5, 6};
static constexpr Value states[] = {0, 1, state_bound, state_bound, state_bound, state_unbound, 4, 5};
static constexpr Value requested_nps[] = {0, 1, 7, 8, 9, 10, 0xffffffff};
static constexpr Value small_counts[] = {0, 1, 2, 3, 0x7fff, 0xffff};
static constexpr Value xid_types[] = {0, 1, 1, 2, 2, 3, 3, 4, 4, 5, 10, 11};
static constexpr Value groups[] = {0, 1, 2, 3, 0x7fffffff, 0xffffffff};
static constexpr Value storm_statuses[] = {0, 1, 3, 3, 5, 6};
static constexpr Value stamps[] = {0, 1, 0xfffffffff, 0x7fffffffffffffff, 0xffffffffffffffff};
static constexpr Value retrieval_statuses[] = {0, 0, 1};
static constexpr Value roles[] = {0, 1, 2, 3, 4};
static constexpr Value resource_lengths[] = {0,
                                             3,
                                             4,
                                             sizeof(ResourceData) + 1 * sizeof(U32),
                                             sizeof(ResourceData) + 2 * sizeof(U32),
                                             sizeof(ResourceData) + 3 * sizeof(U32),
                                             sizeof(ResourceData) + 8 * sizeof(U32),
                                             0xffffffff};
static constexpr Value times[] = {0,
                                  999'999,
                                  1'000'000,
                                  59'001'000'000,
                                  59'000'000'000,
                                  3'599'000'000'000,
                                  86'399'000'000'000,
                                  8'639'999'000'000'000,
                                  0xffffffffffffffff};

/// More than any view goes through one by one; a count above it is left to random changes.
static std::size_t followed(std::size_t count)
{
    constexpr std::size_t most = 12;
    return std::min(count, most);
}

static Call add_call(Shape &shape)
{
    const auto [at, call] = shape.add<Call>();
    shape.host<U32>(at + offsetof(Call, objtype), objtypes);
    shape.host<U32>(at + offsetof(Call, direction), directions);
    shape.host<U32>(at + offsetof(Call, view_flags), view_flags);
    shape.host<U32>(at + offsetof(Call, level), levels);
    shape.host<U8>(at + offsetof(Call, function), functions);
    shape.host<U8>(at + offsetof(Call, choices), flags);
    shape.host<U32>(at + offsetof(Call, card_type), card_types);
    shape.host<U64>(at + offsetof(Call, monotonic_seconds), clock_values);
    shape.host<U64>(at + offsetof(Call, nanoseconds), clock_values);
    shape.host<U32>(at + offsetof(Call, ifhandle_status), answers);
    shape.host<U8>(at + offsetof(Call, ifhandle_is_virtual), answers);
    shape.host<U16>(at + offsetof(Call, period), periods);
    shape.host<U8>(at + offsetof(Call, magnitude), magnitudes);
    return call;
}

static void mark_features(Shape &shape, std::size_t at)
{
    shape.wire<U32>(at + offsetof(FeatureFlags, features), flags);
    shape.wire<U32>(at + offsetof(FeatureFlags, more), flags);
}

static void mark_storm_control(Shape &shape, std::size_t at)
{
    for (const std::size_t traffic : {0U, 1U, 2U}) {
        shape.wire<U32>(at + offsetof(StormControlState, traffic) + traffic * sizeof(StormControlTraffic) +
                            offsetof(StormControlTraffic, status),
                        storm_statuses);
    }
}

static void mark_port(Shape &shape, std::size_t at)
{
    shape.wire<U32>(at + offsetof(BridgePortContext, state), states);
    shape.wire<U32>(at + offsetof(BridgePortContext, flags), flags);
    mark_features(shape, at + offsetof(BridgePortContext, features));
    shape.wire<U32>(at + offsetof(BridgePortContext, lb_type), roles);
    shape.wire<U32>(at + offsetof(BridgePortContext, p2mp_role), roles);
    shape.wire<U64>(at + offsetof(BridgePortContext, last_notification), stamps);
    shape.host<U8>(at + offsetof(BridgePortContext, storm_control_unit), flags);
    mark_storm_control(shape, at + offsetof(BridgePortContext, storm_control));
}

static void mark_xid(Shape &shape, std::size_t at)
{
    shape.wire<U32>(at + offsetof(XidEntry, type), xid_types);
    shape.wire<U32>(at + offsetof(XidEntry, remote_type), xid_types);
    shape.wire<U32>(at + offsetof(XidEntry, flags), flags);
    shape.wire<U32>(at + offsetof(XidEntry, shg), groups);
}

static void mark_np(Shape &shape, std::size_t at)
{
    mark_xid(shape, at + offsetof(VplsNpRecord, xid));
    shape.host<U32>(at + offsetof(VplsNpRecord, bports_present), roles);
    shape.wire<U32>(at + offsetof(VplsNpRecord, bports) + offsetof(Bport, entry) + offsetof(BportEntry, flags), flags);
    shape.wire<U32>(at + offsetof(VplsNpRecord, uidb) + offsetof(UidbEntry, retrieval_status), retrieval_statuses);
    shape.host<Bytes<14>>(at + offsetof(VplsNpRecord, uidb) + offsetof(UidbEntry, flags), flags);
}

static void add_vpls_ac(Shape &shape, std::uint32_t direction)
{
    const std::size_t at = shape.whole_size();
    shape.wire<U32>(at, np_counts);
    if (direction != L2FIB_INGRESS) {
        const std::size_t nps = followed(shape.add<VplsEgressBlock>().record.np_count.peek<&VplsNpCount::count>());
        for (std::size_t np = 0; np < nps; ++np) {
            mark_np(shape, shape.add<VplsNpRecord>().offset);
        }
        return;
    }
    mark_port(shape, at + offsetof(VplsIngressBlock, port));
    const std::size_t nps = followed(shape.add<VplsIngressBlock>().record.np_count.peek<&VplsNpCount::count>());
    for (std::size_t np = 0; np < nps; ++np) {
        mark_np(shape, shape.add<VplsIngressNpRecord>().offset);
    }
    shape.add<VplsIngressTrailer>();
}

/// What the contexts of ACs and PWs have in common.
template <class Context>
static void mark_circuit(Shape &shape, std::size_t at)
{
    shape.wire<U32>(at + offsetof(Context, service), services);
    shape.wire<U32>(at + offsetof(Context, state), states);
    shape.wire<U32>(at + offsetof(Context, flags), flags);
    shape.wire<U32>(at + offsetof(Context, shg), groups);
}

static void add_ac(Shape &shape, const Call &call)
{
    const auto [at, ac] = shape.add<AcShowData>();
    shape.wire<U16>(at + offsetof(AcShowData, np_count), np_counts);
    mark_circuit<AcContext>(shape, at + offsetof(AcShowData, context));
    shape.host<U32>(at + offsetof(AcShowData, context) + offsetof(AcContext, requested_np), requested_nps);
    const std::uint32_t np_count = ac.np_count.count;
    shape.skip((np_count & 0xffU) * np_entry_size);
    if (ac.context.peek<&AcContext::service>() == service_vpls) {
        add_vpls_ac(shape, call.direction);
        return;
    }
    shape.add<PlainAcBlock>();
    const NpRange nps = np_range(ac.context.peek<&AcContext::requested_np>(), np_count);
    for (std::size_t np = followed(nps.end - nps.first); np != 0; --np) {
        mark_xid(shape, shape.add<Received<XidEntry>>().offset);
    }
}

static void add_pw(Shape &shape, const Call &call)
{
    const auto [at, pw] = shape.add<PwHardwareShowData>();
    shape.wire<U32>(at + offsetof(PwHardwareShowData, np_count), np_counts);
    mark_circuit<PwContext>(shape, at);
    const std::size_t nps = followed(pw.np_count);
    if (pw.rp.context.peek<&PwContext::service>() != service_vpls) {
        for (std::size_t np = 0; np < nps; ++np) {
            mark_xid(shape, shape.add<PwNpRecord>().offset + offsetof(PwNpRecord, xid));
        }
        return;
    }
    for (std::size_t np = 0; np < nps; ++np) {
        mark_xid(shape, shape.add<Received<XidEntry>>().offset);
    }
    if (call.direction == L2FIB_INGRESS) {
        const std::size_t block = shape.add<PwIngressBlock>().offset;
        for (const std::size_t part :
             {offsetof(Layer3Paths, state), offsetof(Layer3Paths, primary), offsetof(Layer3Paths, backup)}) {
            shape.wire<U8>(block + offsetof(PwIngressBlock, paths) + part, flags);
        }
        shape.skip(nps * sizeof(StormControlProfile));
    }
}

static void add_bridge_members(Shape &shape, std::size_t count)
{
    for (std::size_t copy = followed(count) * bridge_member_copies; copy != 0; --copy) {
        shape.wire<U32>(shape.add<Received<BridgeMemberRecord>>().offset + offsetof(BridgeMemberRecord, flags), flags);
    }
}

static std::vector<std::size_t> add_bridge_hal_nps(Shape &shape, std::size_t nps)
{
    std::vector<std::size_t> members;
    for (std::size_t np = 0; np < nps; ++np) {
        const auto [at, entry] = shape.add<BridgeHalNpEntry>();
        for (const std::size_t group : {0U, 1U, 2U}) {
            shape.host<U16>(at + offsetof(BridgeHalNpEntry, shg_members) + group * sizeof(U16), small_counts);
        }
        members.push_back(entry.members());
    }
    return members;
}

static std::size_t add_feature_block_1(Shape &shape, std::size_t nps)
{
    std::size_t pw_over_bvi_members = 0;
    shape.add<Received<BridgeFeatureBlock1>>();
    for (std::size_t np = 0; np < nps; ++np) {
        auto [at, entry] = shape.add<Received<BridgeFeatureBlock1Np>>();
        shape.wire<U16>(at + offsetof(BridgeFeatureBlock1Np, pw_over_bvi_members), small_counts);
        const std::size_t members = entry.to_host().members();
        pw_over_bvi_members = np == 0 ? members : pw_over_bvi_members;
    }
    return pw_over_bvi_members;
}

static void add_bridge(Shape &shape, const Call &call)
{
    auto [at, bridge] = shape.add<BridgeShowData>();
    constexpr std::size_t context = offsetof(BridgeShowData, context);
    shape.wire<U16>(at + offsetof(BridgeShowData, np_count), np_counts);
    shape.wire<U32>(at + context + offsetof(BridgeContext, state), states);
    shape.wire<U32>(at + context + offsetof(BridgeContext, flags), flags);
    shape.wire<U32>(at + context + offsetof(BridgeContext, mac_limit_action), roles);
    shape.wire<U64>(at + context + offsetof(BridgeContext, last_notification), stamps);
    shape.host<U8>(at + offsetof(BridgeShowData, hal) + offsetof(BridgeHalContext, flags), flags);
    mark_features(shape, at + context + offsetof(BridgeContext, features));

    const BridgeContext &context_of_bridge = bridge.context.to_host();
    const std::size_t nps = followed(bridge.np_count.count);
    const std::vector<std::size_t> members = add_bridge_hal_nps(shape, nps);
    const std::size_t pw_members = context_of_bridge.has_feature_block_1() ? add_feature_block_1(shape, nps) : 0;
    const std::size_t counts = shape.add<Received<BridgeMemberCounts>>().offset;
    shape.wire<U16>(counts + offsetof(BridgeMemberCounts, members), small_counts);
    shape.wire<U16>(counts + offsetof(BridgeMemberCounts, pw_over_bvi_members), small_counts);
    if (call.direction == L2FIB_INGRESS && context_of_bridge.has_feature_block_2()) {
        for (std::size_t np = 0; np < nps; ++np) {
            mark_storm_control(shape, shape.add<Received<StormControlState>>().offset);
        }
        shape.skip(nps * sizeof(StormControlProfile));
    }
    for (std::size_t np = 0; np < nps; ++np) {
        shape.wire<U32>(shape.add<Received<BridgeDomainRecord>>().offset, flags);
        add_bridge_members(shape, members[np]);
    }
    add_bridge_members(shape, pw_members);
}

static void add_mac(Shape &shape)
{
    const std::size_t at = shape.add<BridgeMacShowData>().offset;
    shape.wire<U32>(at + offsetof(BridgeMacShowData, context) + offsetof(BridgeMacContext, state), states);
    shape.wire<U32>(at + offsetof(BridgeMacShowData, context) + offsetof(BridgeMacContext, flags), flags);
    shape.wire<U32>(shape.add<Received<MacEntry>>().offset + offsetof(MacEntry, flags), flags);
}

static void add_next_hop(Shape &shape)
{
    const auto [at, next_hop] = shape.add<Received<NextHopContext>>();
    shape.wire<U16>(at + offsetof(NextHopContext, num_paths), small_counts);
    for (std::size_t path = followed(next_hop.peek<&NextHopContext::num_paths>()); path != 0; --path) {
        shape.wire<U32>(shape.add<Received<IgpPath>>().offset, flags);
    }
}

static void add_resources(Shape &shape)
{
    const std::size_t at = shape.add<ResourceShowData>().offset;
    const auto [data, resources] = shape.add<ResourceData>();
    shape.wire<U32>(data, np_counts);
    for (std::size_t operation = 0; operation < resource_operations; ++operation) {
        shape.wire<U64>(data + offsetof(ResourceData, uses) + operation * sizeof(ResourceOperation) +
                            offsetof(ResourceOperation, time),
                        times);
    }
    shape.skip(followed(resources.np_count) * sizeof(U32));
    shape.wire<U32>(at, resource_lengths);
}

static void add_tlv(Shape &shape, std::span<const std::uint8_t> input)
{
    static constexpr Value types[] = {0, 1, 2, 3, 4, 4, 5, 6, 7, 0xff};
    static constexpr Value sizes[] = {0, 2, 3, 4, 6, 7, 7, 8, 12, 80, 0xff};
    static constexpr Value verdicts[] = {0, 1, 2, 3, 4, 5, 0xff};
    constexpr std::size_t header_size = 3;
    for (std::size_t at = shape.whole_size(); at + 1 < input.size(); at = shape.whole_size()) {
        shape.wire<U8>(at, types);
        shape.wire<U8>(at + 1, sizes);
        shape.wire<U8>(at + 2, verdicts);
        shape.skip(std::max<std::size_t>(input[at + 1], header_size));
    }
}

Shape shape_of_tlv(std::span<const std::uint8_t> input)
{
    Shape shape(input);
    add_call(shape);
    add_tlv(shape, input);
    return shape;
}

Shape shape_of_object(std::span<const std::uint8_t> input)
{
    Shape shape(input);
    const Call call = add_call(shape);
    if ((call.view_flags & L2FIB_VIEW_INCONSISTENT) != 0) {
        add_tlv(shape, input);
        return shape;
    }
    const std::uint32_t objtype = call.objtype.value();
    switch (objtype) {
    case L2FIB_OBJTYPE_AC: add_ac(shape, call); break;
    case L2FIB_OBJTYPE_MPLS: add_pw(shape, call); break;
    case L2FIB_OBJTYPE_BRIDGE: add_bridge(shape, call); break;
    case L2FIB_OBJTYPE_BRIDGE_PORT: mark_port(shape, shape.add<Received<BridgePortContext>>().offset); break;
    case L2FIB_OBJTYPE_BRIDGE_MAC: add_mac(shape); break;
    case L2FIB_OBJTYPE_NHOP: add_next_hop(shape); break;
    case L2FIB_OBJTYPE_RSRC_MON: add_resources(shape); break;
    default: break;
    }
    return shape;
}

Shape shape_of_summary(std::span<const std::uint8_t> input)
{
    Shape shape(input);
    const std::uint8_t function = add_call(shape).function.value();
    switch (function % summary_functions) {
    case state_summary:
        shape.add<Received<StateSummary>>();
        shape.skip(1);
        break;
    case event_statistics:
        shape.add<Received<EventCounts>>();
        shape.wire<U64>(shape.add<Received<EventTimes>>().offset, times);
        break;
    case hal_summary: {
        const auto [at, count] = shape.add<BigU32>();
        shape.wire<U32>(at, np_counts);
        shape.skip(std::min<std::size_t>(count, 0x400) * (sizeof(U32) + sizeof(U16)) + sizeof(HalSummaryTotals));
        break;
    }
    default: add_resources(shape); break;
    }
    return shape;
}

} // namespace l2fib
